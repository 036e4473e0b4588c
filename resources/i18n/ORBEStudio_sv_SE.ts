<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="zh_CN">
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
        <translation>Kommando,Datalängd,Byte0
Kommando (hex),Byte1
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
        <translation>Klar</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Håll ned och dra till valfri plats på skärmen för att hämta färgen</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Det här skrivbordet låter inte program läsa skärmen: färghämtning från skärmen är inte tillgänglig</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio – enhetsfelsökning</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Vänster knapp</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Höger knapp</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mittknapp</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Hjul vänster</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Hjul höger</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Hjul upp</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Hjul ned</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Sida upp</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Sida ned</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Grundtangenter</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Utökade tangenter</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tangentkombination</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makron</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Systemfunktioner</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Musfunktioner</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Tilldela:</translation>
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
        <translation>Uppspelning:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Upprepningar</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Medan nedtryckt</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Makro ej inspelat</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Grundtangenter</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Utökade tangenter</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Kombination:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Bekräfta</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Enhetsnamn: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Tangentbordets firmware: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Mottagarens firmware: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Aktuell version: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Sök efter firmwareuppdatering för tangentbordet</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Sök efter firmwareuppdatering för mottagaren</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Guider</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Om Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Hem</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Tangenter</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Magnetiska switchar</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makron</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Ljuseffekter</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Användare</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Parkoppling</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Återställ standard</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Kalibrera tangentväg</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Belysning</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Batteri</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Avancerade</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Övrigt</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn-lager</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Välj en tangent</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Klicka på tangenten du vill ändra på tangentbordet ovan.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Välj funktion</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>En tangentkombination, ett makro, en systemfunktion eller en musfunktion.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Rensa eller inaktivera</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Högerklicka på en tangent för att rensa dess inställning eller inaktivera den.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Anpassad / Fn-lager</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Anpassade tangenter</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Fn-lagrets tangenter</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Klicka först på en tangent ovan; i dialogen som öppnas väljer du en tangentkombination, ett makro, en systemfunktion eller en musfunktion för den.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Dynamisk tangentväg</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Håll/Tryck</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Växla</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Systemtangent</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Ta bort den här skapelsen?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Min skapelse %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Förhandsvisning,Namn,Hantera</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Mina skapelser</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Lager %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Klicka på en tangent, eller dra en ruta från en tom yta på tangentbordet, för att måla. Välj ett lager att skriva för att skicka bilden till tangentbordet; välj ett lager att läsa för att hämta tillbaka en.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Färg:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Pipett:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Pipett</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Slumpfärg:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Skriv till lager:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Läs från lager:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Namn:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Fördröjning</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Använt</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Stoppa inspelning</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Starta inspelning</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Makron</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nytt makro</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Infoga</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Töm</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Fast fördröjning (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Släpp</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Under inspelning registreras tangenter och klick på den här sidan</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Klicka på ”Starta inspelning” och tryck sedan på tangenter eller klicka här; eller lägg till händelser en i taget med ”Infoga”</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Tangentväg</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Dödzoner</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switchtyp</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilisering</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Valda tangenter</translation>
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
        <translation>Mekanisk</translation>
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
        <translation>Låg profil</translation>
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
        <translation>Anpassad</translation>
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
        <translation>Rapid trigger (alla)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Tangentväg (alla)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Systeminställningar</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Starta programmet när jag loggar in</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Kalibrera tangentväg</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Tryck ned varje tangent i tur och ordning, mjukt hela vägen, och håll den nere minst en sekund tills den blir orange (tangenten är kalibrerad). Hoppa inte över någon; att trycka igen gör inget. Via trådlös anslutning visas inte de kalibrerade tangenterna. Dra inte ur kabeln under kalibreringen.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guide för kalibrering av tangentväg</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Starta kalibrering</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Slutför kalibrering</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Ta bort makro</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitten</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Infoga här</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Ta bort händelsen</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Valda tangenter: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Dödzoner</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Tangenternas dödzoner</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Vägen mellan bottenläget och början av ett släpp kallas ”dödzon”. Dödzoner hindrar en magnetisk switch från att tappa kontakt av yttre störningar. En magnetisk switchs botten kan ställas in efter tycke; inom en dödzon utlöser tangenten inte.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Övre dödzon</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Nedre dödzon</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0 % (av)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>På</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (stabilisering av rapid trigger)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Med RT Stab på stabiliserar tangentbordet botten av tangentvägen. Ju högre nivå, desto stadigare tangenter, till priset av något högre latens.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Skydd mot feltryck</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Vid de känsligaste inställningarna kan ett skakande bord eller en switchtolerans på upp till 0,1 mm utlösa en tangent av misstag. När det är på jämnar tangentbordet ut skillnaden i botten av vägen och blir stadigare.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Av)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switchtyp</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Efter switchbyte: välj en typ nedan och klicka sedan på tangenterna som har den. Varje tangent ställs in direkt och visar färgen för sin switchtyp.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Vägtest</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Tangenttest</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Mottagna tangenter</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Tangentväg</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Separat tryck och släpp:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid trigger över hela vägen (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>På: rapid trigger slutar först när tangenten är helt släppt.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Av: rapid trigger slutar ovanför aktiveringspunkten.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Separat nytt tryck och återställning</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Väg för att utlösa igen vid tryck (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Väg för att återställa vid släpp (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Mina enheter</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Visa fönstret</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Dölj fönstret</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Söker efter enheter</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Avsluta ORBE-drivrutinen?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Sök igen</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Klicka på en enhet för att ställa in den</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>Startar drivrutinen för ”%1”...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>Drivrutinen för ”%1” är inte installerad. Installera om ORBE-drivrutinen och försök igen.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Infoga</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Välj typ av makrohändelse att lägga till</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Tangent</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Musknapp</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Musposition</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Tryck på en tangent......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitten</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Höger</translation>
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
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Dynamisk tangentväg (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Håll/Tryck (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Växla (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Tangent</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>En tangent, upp till fyra funktioner vid fyra punkter av dess väg. Välj tangenten på tangentbordet ovan; klicka på ett vägvärde för att flytta dess punkt.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>Vid tryck</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>Vid håll</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Välj en tangent ovan och ge den två funktioner, en för ett kort tryck och en för att hålla (tangentkombinationer fungerar också).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Hur länge tangenten måste hållas för att räknas som håll</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Välj en tangent ovan och ge den en funktion; ett tryck slår på den och nästa slår av den, som upprepning eller som håll.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Upprepa</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Håll</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Koppla ihop två tangenter, var och en vald på tangentbordet ovan: när båda hålls nere vinner den som trycktes sist.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Tangent A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Tangent B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Ingen funktion</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Håll</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Tryck (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>Ingen funktion</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Rapportfrekvens</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G belysning av</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth belysning av</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G djupvila efter</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth djupvila efter</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Debounce-nivå</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Regnbåge</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fast sken</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Andning</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Ström</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Våg</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Förval</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Sidoljus</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Enskild tangent</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effekt:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Hastighet:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Ljusstyrka:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Färg:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Pipett</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Klicka på en färg: den blir tangenternas färg</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Ljusstyrka</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Fast sken</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Andning</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Krusning</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Norrsken</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Regndroppar</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Samling</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Ström</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Våg</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Stjärnljus</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Skugga</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinusvåg</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fontän</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Blomning</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Två fåglar</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Slingrande väg</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Duggregn</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Spår i snön</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Oändliga lager</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Ljus och skugga</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Egen bild</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Sicksack</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spiral</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Inåt</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Utåt</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Åt höger</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Åt vänster</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Mönster 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Mönster 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Mönster 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Mönster 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Mönster 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Medurs</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Moturs</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Ljuseffekt</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Uppspelning:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>På: tangentbordets ljus är släckt</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Hastighet</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Föregående spår</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Nästa spår</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Spela/Paus</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Ljud av</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Volym +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volym -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Mediaspelare</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Kalkylator</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Startsida</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoriter</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Skärmljus +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Skärmljus -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Röstassistent</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Byt inmatningsmetod</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn-lås</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Lås skärmen</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Höger Fn-tangent</translation>
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
        <translation>Ström</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Viloläge</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Väck</translation>
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
        <translation>Vänster Fn-tangent</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Fabriksåterställning</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Lås Win-tangenten</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Windows-läge</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mac-läge</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Byt system</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Byt WASD och pilar</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Byt Fn-lager</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Energisparläge</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Byt APP/CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Belysning på/av</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Belysning: växla effekt</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Belysning: effekt +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Belysning: effekt -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Belysning: växla ljusstyrka</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Belysning: ljusstyrka +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Belysning: ljusstyrka -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Belysning: växla hastighet</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Belysning: hastighet -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Belysning: hastighet +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Belysning: växla riktning</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Belysning åt vänster</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Belysning åt höger</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Belysning: växla färg</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Belysning: färg +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Belysning: färg -</translation>
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
        <translation>Sidoljus på/av</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Sidoljus: växla ljusstyrka</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Sidoljus: växla hastighet</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Sidoljus: hastighet +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Sidoljus: hastighet -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Sidoljus: växla färg</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Sidoljus: färg +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Sidoljus: färg -</translation>
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
        <translation>2.4G-parkoppling</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth-parkoppling</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert-tangent</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen-tangent</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Vänsterklick</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Högerklick</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Mittenklick</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Framåtknapp</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Bakåtknapp</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Hjul vänster</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Hjul höger</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Hjul upp</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Hjul ned</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Sida upp</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Sida ned</translation>
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
        <translation>Mus</translation>
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
        <translation>Vald tangent</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Ändrad tangent</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Inaktiverad tangent</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Rensa inställning</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Inaktivera tangent</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Aktivera tangent</translation>
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
        <translation>Tryck (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Släpp (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nytt makro</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Dra pekaren eller tryck på − / +: alla tangenter får värdet direkt.</translation>
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
        <translation>Orbe 7090 guide: makron</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
