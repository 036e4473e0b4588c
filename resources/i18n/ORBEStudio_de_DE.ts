<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
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
        <translation>Befehl,Datenlänge,Byte0
Befehl (hex),Byte1
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
        <translation>Fertig</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Gedrückt halten und an eine beliebige Stelle des Bildschirms ziehen, um die Farbe aufzunehmen</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Dieser Desktop erlaubt Programmen nicht, den Bildschirm zu lesen: Farbaufnahme vom Bildschirm nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio Gerätedebugging</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Linke Taste</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Rechte Taste</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mittlere Taste</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Rad links</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Rad rechts</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Rad hoch</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Rad runter</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Standardtasten</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Erweiterte Tasten</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tastenkombination</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Systemfunktionen</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Mausfunktionen</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Zuweisen:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>宏%1</source>
        <translation>Makro %1</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Wiedergabe:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Solange gehalten</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Makro nicht aufgenommen</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Standardtasten</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Erweiterte Tasten</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Kombination:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Gerätename: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Tastatur-Firmware: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Empfänger-Firmware: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Aktuelle Version: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Tastatur-Firmware-Updates suchen</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Empfänger-Firmware-Updates suchen</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Anleitungen</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Über Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Magnet-Switches</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Lichteffekte</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Onboard %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Koppeln</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Standard wiederherstellen</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Hubkalibrierung</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Beleuchtung</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Akku</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Belegung</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Spezialtasten</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn-Ebene</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Taste wählen</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Klicke oben auf der Tastatur auf die Taste, die du ändern willst.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Funktion wählen</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>Eine Tastenkombination, ein Makro, eine Systemfunktion oder eine Mausfunktion.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Löschen oder deaktivieren</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Rechtsklick auf eine Taste löscht ihre Belegung oder deaktiviert sie.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Benutzerdefiniert / Fn-Ebene</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Eigene Tastenbelegung</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Tasten der Fn-Ebene</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Klicke zuerst oben auf eine Taste; im folgenden Dialog wählst du eine Tastenkombination, ein Makro, eine Systemfunktion oder eine Mausfunktion für sie.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Dynamischer Tastenhub</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Halten/Tippen</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Systemtaste</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Dieses Design löschen?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Mein Design %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Vorschau,Name,Aktion</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Meine Designs</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Klicke auf eine Taste oder ziehe von einer freien Stelle der Tastatur einen Rahmen auf, um zu färben. Eine Ebene unter „Schreiben“ sendet das Bild an die Tastatur, eine Ebene unter „Lesen“ holt es zurück.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Pipette:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Zufallsfarbe:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>In Ebene schreiben:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Aus Ebene lesen:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Aufnahme stoppen</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Neues Makro</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Feste Verzögerung (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Loslassen</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Während der Aufnahme werden Tasten und Klicks auf dieser Seite aufgezeichnet</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Klicke auf „Aufnahme starten“ und drücke dann Tasten oder klicke hier; oder füge Ereignisse einzeln mit „Einfügen“ hinzu</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Tastenhub</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Totzonen</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switch-Typ</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilisierung</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Gewählte Tasten</translation>
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
        <translation>Mechanisch</translation>
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
        <translation>Flach</translation>
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
        <translation>Eigener</translation>
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
        <translation>Rapid Trigger (global)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Tastenhub (global)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Dieses Programm bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Hubkalibrierung</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Drücke jede Taste nacheinander sanft ganz durch und halte sie mindestens eine Sekunde unten, bis sie orange wird (diese Taste ist kalibriert). Lass keine aus; erneutes Drücken schadet nicht. Über Funk werden die kalibrierten Tasten nicht angezeigt. Zieh während der Kalibrierung das Kabel nicht ab.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Anleitung zur Hubkalibrierung</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Kalibrierung starten</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Kalibrierung beenden</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Makro löschen</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Hier einfügen</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Dieses Ereignis löschen</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Gewählte Tasten: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Totzonen</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Totzonen der Tasten</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Der Weg zwischen dem Tiefpunkt und dem Beginn des Loslassens heißt „Totzone“. Totzonen verhindern, dass ein Magnet-Switch durch äußere Störungen aussetzt. Der Tiefpunkt eines Magnet-Switches lässt sich nach Wunsch einstellen; innerhalb einer Totzone löst die Taste nicht aus.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Obere Totzone</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Untere Totzone</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (aus)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>An</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (Rapid-Trigger-Stabilisierung)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Mit RT Stab stabilisiert die Tastatur das untere Ende des Hubs. Je höher die Stufe, desto ruhiger die Tasten, bei etwas mehr Latenz.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Fehlauslöseschutz</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Bei den empfindlichsten Einstellungen können ein wackelnder Tisch oder eine Switch-Toleranz von bis zu 0,1 mm eine Taste versehentlich auslösen. Eingeschaltet gleicht die Tastatur diese Differenz am unteren Ende des Hubs aus und bleibt stabiler.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Aus)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switch-Typ</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Nach einem Switch-Tausch einen Typ unten wählen, dann die Tasten anklicken, die ihn tragen: Jede Taste wird sofort gesetzt und zeigt die Farbe ihres Switch-Typs.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Hubtest</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Tastentest</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Empfangene Tasten</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Tastenhub</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Drücken/Lösen getrennt:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger über den ganzen Hub (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>An: Rapid Trigger endet erst, wenn die Taste ganz losgelassen ist.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Aus: Rapid Trigger endet, sobald die Taste über ihren Auslösepunkt steigt.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Erneutes Drücken und Zurücksetzen getrennt</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Weg bis zum erneuten Auslösen beim Drücken (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Weg bis zum Zurücksetzen beim Loslassen (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Meine Geräte</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Fenster anzeigen</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Fenster ausblenden</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Suche nach Geräten</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>ORBE-Treiber beenden?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Klicke auf ein Gerät, um es einzurichten</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>Treiber für „%1“ wird gestartet...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>Der Treiber für „%1“ ist nicht installiert. Installiere den ORBE-Treiber neu und versuche es erneut.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Art des Makro-Ereignisses wählen</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Tastaturtaste</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Maustaste</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Mausposition</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Taste drücken......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Rechts</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Dynamischer Tastenhub (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Halten/Tippen (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Umschalten (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>Eine Taste, bis zu vier Funktionen an vier Punkten ihres Hubs. Wähle die Taste oben auf der Tastatur; klicke auf einen Hubwert, um seinen Punkt zu verschieben.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>Beim Tippen</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>Beim Halten</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Wähle oben eine Taste und gib ihr zwei Funktionen, eine fürs Tippen und eine fürs Halten (auch Tastenkombinationen).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Wie lange die Taste gehalten werden muss, damit es als Halten zählt</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Wähle oben eine Taste und gib ihr eine Funktion; ein Druck schaltet sie ein, der nächste aus, als Dauerfeuer oder als Halten.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Dauerfeuer</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Zwei Tasten verbinden, jede oben auf der Tastatur gewählt: Sind beide gedrückt, gewinnt die zuletzt gedrückte.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Taste A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Taste B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Keine Funktion</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Halten</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Drücken (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>Keine Funktion</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Abfragerate</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G Beleuchtung aus</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth Beleuchtung aus</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G Tiefschlaf nach</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth Tiefschlaf nach</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Entprellstufe</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Regenbogen</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Atmen</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Seitenlicht</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Einzeltaste</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effekt:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Klicke auf eine Farbe: Sie dreht sich in die Mitte und färbt die Tasten</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Atmen</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Wellenringe</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Regentropfen</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Sammeln</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Sternenlicht</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinuswelle</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fontäne</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Blütenpracht</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Zwei Vögel</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Serpentinen</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Nieselregen</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Schneespuren</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Endlose Schichten</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Licht und Schatten</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Eigenes Bild</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Zickzack</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spirale</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Nach innen</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Nach außen</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Bild 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Bild 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Bild 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Bild 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Bild 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Lichteffekt</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Wiedergabe:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>An: Tastaturbeleuchtung aus</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Tempo</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Vorheriger Titel</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Nächster Titel</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Mediaplayer</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Arbeitsplatz</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Helligkeit +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Helligkeit -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Sprachassistent</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Eingabemethode wechseln</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn-Sperre</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Bildschirm sperren</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Rechte Fn-Taste</translation>
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
        <translation>Ein/Aus</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Ruhezustand</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Aufwecken</translation>
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
        <translation>Linke Fn-Taste</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Werkseinstellungen</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Win-Taste sperren</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Windows-Modus</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mac-Modus</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>System wechseln</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>WASD und Pfeile tauschen</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Fn-Ebene wechseln</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Energiesparen</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>APP/CTRL wechseln</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Licht an/aus</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Lichteffekt durchschalten</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Lichteffekt +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Lichteffekt -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Lichthelligkeit durchschalten</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Lichthelligkeit +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Lichthelligkeit -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Lichttempo durchschalten</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Lichttempo -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Lichttempo +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Lichtrichtung durchschalten</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Licht nach links</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Licht nach rechts</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Lichtfarbe durchschalten</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Lichtfarbe +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Lichtfarbe -</translation>
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
        <translation>Seitenlicht an/aus</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Seitenlicht: Helligkeit durchschalten</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Seitenlicht: Tempo durchschalten</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Seitenlicht: Tempo +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Seitenlicht: Tempo -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Seitenlicht: Farbe durchschalten</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Seitenlicht: Farbe +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Seitenlicht: Farbe -</translation>
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
        <translation>Kabel</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Kabel-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G koppeln</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth koppeln</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Einfg-Taste</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Druck-Taste</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Linksklick</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Rechtsklick</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Mittelklick</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Vorwärts-Taste</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Zurück-Taste</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Rad links</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Rad rechts</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Rad hoch</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Rad runter</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Bild ab</translation>
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
        <translation>Makro</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Kombination</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Gewählte Taste</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Geänderte Taste</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Deaktivierte Taste</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Belegung löschen</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Taste deaktivieren</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Taste aktivieren</translation>
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
        <translation>Drücken (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Loslassen (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Neues Makro</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Zeiger ziehen oder − / + drücken: Alle Tasten übernehmen den Wert sofort.</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090 Anleitung: Makros</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
