<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="zh_CN">
<context>
    <name>ConsoleTableModel</name>
    <message>
        <source>命令,数据长度,Byte0
命令号(Hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</source>
        <translation>Команда,Длина данных,Byte0
Номер команды (hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>完成</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Зажмите и перетащите в любое место экрана, чтобы взять цвет</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Этот рабочий стол не разрешает программам читать экран: выбор цвета с экрана недоступен</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio: отладка устройства</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Левая кнопка</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Правая кнопка</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Средняя кнопка</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Колесо влево</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Колесо вправо</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Колесо вверх</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Колесо вниз</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Основные клавиши</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Доп. клавиши</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Сочетание клавиш</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Системные функции</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Функции мыши</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Назначить:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>宏%1</source>
        <translation>Макрос %1</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Режим:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Повторы</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Пока зажата</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Макрос не записан</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Основные клавиши</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Доп. клавиши</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Сочетание:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Устройство: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Прошивка клавиатуры: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Прошивка приёмника: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Текущая версия: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Проверить обновления прошивки клавиатуры</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Проверить обновления прошивки приёмника</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Инструкции</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Об Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Магнитные свитчи</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Профиль %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Сопряжение</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Сбросить настройки</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Калибровка хода</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Подсветка</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Заряд</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Своя раскладка</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Доп. клавиши</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Слой Fn</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Выберите клавишу</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Нажмите на клавиатуре выше клавишу, которую нужно изменить.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Выберите действие</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>Сочетание клавиш, макрос, системная функция или функция мыши.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Сброс или отключение</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Щелчок правой кнопкой по клавише сбрасывает её настройку или отключает её.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Своя раскладка / слой Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Свои клавиши</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Клавиши слоя Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Сначала нажмите клавишу выше; в открывшемся окне выберите для неё сочетание клавиш, макрос, системную функцию или функцию мыши.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Динамический ход (DKS)</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Удержание/нажатие</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Переключатель</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Макрос</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Системная клавиша</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Удалить эту работу?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Моя работа %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Превью,Название,Действие</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Мои работы</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Слой %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Нажмите клавишу или растяните рамку от свободного места клавиатуры, чтобы раскрасить. Выбор слоя для записи отправляет рисунок в клавиатуру, выбор слоя для чтения считывает его обратно.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Цвет:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Пипетка:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Пипетка</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Случайный цвет:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Записать в слой:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Прочитать слой:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>байт</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Начать запись</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Новый макрос</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Фикс. задержка (мс):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Отпускание</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Нажатие</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Во время записи нажатия клавиш и щелчки на этой странице записываются</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Нажмите «Начать запись», затем нажимайте клавиши или щёлкайте здесь; или добавляйте события по одному через «Вставить»</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Ход</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Мёртвые зоны</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Тип свитча</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Стабилизация</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Тесты</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Выбрано клавиш</translation>
    </message>
    <message>
        <source>高特</source>
        <translation>Gaote</translation>
    </message>
    <message>
        <source>磁玉</source>
        <translation>Jade</translation>
    </message>
    <message>
        <source>磁玉pro</source>
        <translation>Jade Pro</translation>
    </message>
    <message>
        <source>磁玉gaming</source>
        <translation>Jade Gaming</translation>
    </message>
    <message>
        <source>天王</source>
        <translation>Sky King</translation>
    </message>
    <message>
        <source>万磁王</source>
        <translation>Magnet King</translation>
    </message>
    <message>
        <source>机械轴</source>
        <translation>Механический</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Kaihua</translation>
    </message>
    <message>
        <source>星引力</source>
        <translation>Star Gravity</translation>
    </message>
    <message>
        <source>炫光</source>
        <translation>Dazzle</translation>
    </message>
    <message>
        <source>闪电</source>
        <translation>Lightning</translation>
    </message>
    <message>
        <source>星耀</source>
        <translation>Starshine</translation>
    </message>
    <message>
        <source>矮磁轴</source>
        <extracomment>冠泰轴</extracomment>
        <translation>Низкопрофильный</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Baize</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Свой</translation>
    </message>
    <message>
        <source>磁玉Pro</source>
        <translation>Jade Pro</translation>
    </message>
    <message>
        <source>磁玉Gaming</source>
        <translation>Jade Gaming</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>RT (все клавиши)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Ход клавиш (все клавиши)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Настройки системы</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Запускать программу при входе в систему</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Калибровка хода</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Нажмите каждую клавишу по очереди плавно до упора и держите не меньше секунды, пока она не станет оранжевой (клавиша откалибрована). Не пропускайте ни одной; повторное нажатие не вредит. При беспроводном подключении откалиброванные клавиши не показываются. Не отключайте кабель во время калибровки.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Как откалибровать ход</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Начать калибровку</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Завершить калибровку</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Удалить макрос</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Левая</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Правая</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Средняя</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Вставить сюда</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Удалить событие</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Выбрано клавиш: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Мёртвые зоны</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Мёртвые зоны клавиш</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Путь от нижней точки до начала отпускания называют «мёртвой зоной». Мёртвые зоны не дают магнитному свитчу пропадать из-за внешних помех. Нижнюю точку магнитного свитча можно настроить под себя; внутри мёртвой зоны клавиша не срабатывает.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Верхняя мёртвая зона</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Нижняя мёртвая зона</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (выкл.)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (стабилизация Rapid Trigger)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>С включённым RT Stab клавиатура стабилизирует нижнюю часть хода. Чем выше уровень, тем стабильнее клавиши, но задержка немного растёт.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Защита от ложных нажатий</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>На самых чувствительных настройках тряска стола или допуск свитча до 0,1 мм могут вызвать ложное срабатывание. Если включено, клавиатура компенсирует эту разницу внизу хода и работает стабильнее.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(выкл.)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Тип свитча</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>После замены свитчей выберите тип ниже, затем щёлкните клавиши с ними: каждая клавиша настраивается сразу и показывает цвет своего типа свитча.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Тест хода</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Тест клавиш</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Полученные клавиши</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Ход</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Раздельные точки:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger на весь ход (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>Вкл.: RT завершается только при полном отпускании.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Выкл.: RT завершается выше точки срабатывания.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Повторное нажатие и сброс отдельно</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Ход до повторного срабатывания при нажатии (мм)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Ход до сброса при отпускании (мм)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Мои устройства</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Показать окно</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Скрыть окно</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Поиск устройств</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Закрыть драйвер ORBE?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Искать снова</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Нажмите на устройство, чтобы настроить его</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>Запуск драйвера «%1»...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>Драйвер «%1» не установлен. Переустановите драйвер ORBE и попробуйте снова.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Выберите тип события макроса</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Клавиша</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Кнопка мыши</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Позиция мыши</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Нажмите клавишу......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Левая</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Средняя</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Правая</translation>
    </message>
    <message>
        <source>X(0 ~ 127):</source>
        <translation>X(0 ~ 127):</translation>
    </message>
    <message>
        <source>Y(0 ~ 127):</source>
        <translation>Y(0 ~ 127):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Динамический ход (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Удержание/нажатие (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Переключатель (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Клавиша</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Функция</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>Одна клавиша — до четырёх функций в четырёх точках её хода. Выберите клавишу на клавиатуре выше; щёлкните значение хода, чтобы сдвинуть точку.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>При нажатии</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>При удержании</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Выберите клавишу выше и задайте две функции: на короткое нажатие и на удержание (сочетания клавиш тоже можно).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Сколько держать клавишу, чтобы это считалось удержанием</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Выберите клавишу выше и задайте функцию: одно нажатие включает её, следующее выключает — как автоповтор или как удержание.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Автоповтор</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Свяжите две клавиши, выбрав каждую на клавиатуре выше: когда зажаты обе, срабатывает нажатая последней.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Клавиша A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Клавиша B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Нет функции</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Нажатие</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Удержание</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Нажатие (мм)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>Нет функции</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Частота опроса</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G: откл. подсветку</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth: откл. подсветку</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G: глубокий сон через</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth: глубокий сон через</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Уровень антидребезга</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Радуга</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Своё</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Постоянный</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Дыхание</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Поток</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Неон</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Волна</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Пресеты</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Боковая подсветка</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Одна клавиша</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Эффект:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Скорость:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Яркость:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Цвет:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Пипетка</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Нажмите на цвет: он встанет в центр и окрасит клавиши</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Яркость</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Постоянный</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Дыхание</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Метеор</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Рябь</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Сияние</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Капли дождя</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Схождение</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Поток</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Неон</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Волна</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Звёзды</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Тень</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Синусоида</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Фонтан</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Цветение</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Две птицы</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Серпантин</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Морось</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Следы на снегу</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Слои без конца</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Свет и тень</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Своя картинка</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Зигзаг</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Спираль</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Внутрь</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Наружу</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Направо</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Налево</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Узор 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Узор 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Узор 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Узор 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Узор 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>По часовой</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Против часовой</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Эффект подсветки</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Режим:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>Вкл.: подсветка клавиатуры выключена</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Скорость</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Предыдущий трек</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Следующий трек</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Пуск/пауза</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Громкость +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Громкость -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Медиаплеер</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Калькулятор</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Почта</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Мой компьютер</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Домашняя страница</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Яркость экрана +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Яркость экрана -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Голосовой помощник</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Сменить язык ввода</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Возврат</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Блокировка Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Блокировка экрана</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Правая Fn</translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation>DPI-Loop</translation>
    </message>
    <message>
        <source>DPI+</source>
        <translation>DPI+</translation>
    </message>
    <message>
        <source>DPI-</source>
        <translation>DPI-</translation>
    </message>
    <message>
        <source>DPI-Shift</source>
        <translation>DPI-Shift</translation>
    </message>
    <message>
        <source>电源</source>
        <translation>Питание</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Сон</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Пробуждение</translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation>Profile-Value</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Profile+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Profile-</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Profile-Loop</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Profile-1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Profile-2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Profile-3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Profile-4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Profile-5</translation>
    </message>
    <message>
        <source>L-Fn键</source>
        <translation>Левая Fn</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Сброс к заводским</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Блокировка Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Режим Windows</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Режим Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Смена системы</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>WASD ↔ стрелки</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Смена слоя Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Энергосбережение</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Смена APP/CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Подсветка вкл./выкл.</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Эффект подсветки по кругу</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Эффект подсветки +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Эффект подсветки -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Яркость подсветки по кругу</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Яркость подсветки +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Яркость подсветки -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Скорость подсветки по кругу</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Скорость подсветки -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Скорость подсветки +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Направление подсветки по кругу</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Подсветка влево</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Подсветка вправо</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Цвет подсветки по кругу</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Цвет подсветки +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Цвет подсветки -</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Use Pic 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Use Pic 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Use Pic 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Use Pic 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Use Pic 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Use Pic</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Боковой свет вкл./выкл.</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Яркость бокового света по кругу</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Скорость бокового света по кругу</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Скорость бокового света +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Скорость бокового света -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Цвет бокового света по кругу</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Цвет бокового света +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Цвет бокового света -</translation>
    </message>
    <message>
        <source>2.4G</source>
        <translation>2.4G</translation>
    </message>
    <message>
        <source>蓝牙1</source>
        <translation>Bluetooth 1</translation>
    </message>
    <message>
        <source>蓝牙2</source>
        <translation>Bluetooth 2</translation>
    </message>
    <message>
        <source>蓝牙3</source>
        <translation>Bluetooth 3</translation>
    </message>
    <message>
        <source>有线</source>
        <translation>Провод</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Провод-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Сопряжение 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Сопряжение Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Клавиша Insert</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Клавиша Print Screen</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Левый щелчок</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Правый щелчок</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Средний щелчок</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Кнопка «Вперёд»</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Кнопка «Назад»</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Колесо влево</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Колесо вправо</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Колесо вверх</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Колесо вниз</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>XUP</source>
        <translation>XUP</translation>
    </message>
    <message>
        <source>XDOWN</source>
        <translation>XDOWN</translation>
    </message>
    <message>
        <source>YUP</source>
        <translation>YUP</translation>
    </message>
    <message>
        <source>YDOWN</source>
        <translation>YDOWN</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Макрос</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Функция</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Мышь</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Сочетание</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Выбранная клавиша</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Изменённая клавиша</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Отключённая клавиша</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Сбросить настройку</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Отключить клавишу</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Включить клавишу</translation>
    </message>
</context>
<context>
    <name>ModuleLangMenu</name>
    <message>
        <source>中文简体</source>
        <translation>中文简体</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>中文繁体</source>
        <translation>中文繁体</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Русский</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Tiếng Việt</source>
        <translation>Tiếng Việt</translation>
    </message>
    <message>
        <source>Português</source>
        <translation>Português</translation>
    </message>
    <message>
        <source>ภาษาไทย</source>
        <translation>ภาษาไทย</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Svenska</source>
        <translation>Svenska</translation>
    </message>
    <message>
        <source>Italiano</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Türkçe</source>
        <translation>Türkçe</translation>
    </message>
</context>
<context>
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>Нажатие (мм)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Отпускание (мм)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Новый макрос</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Перетащите указатель или нажмите − / +: значение сразу применяется ко всем клавишам.</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090, руководство: макросы</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
