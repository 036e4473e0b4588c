<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="zh_CN">
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
        <translation>Comando,Lunghezza dati,Byte0
Comando (hex),Byte1
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
        <translation>Fine</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Tieni premuto e trascina in un punto qualsiasi dello schermo per prelevarne il colore</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Questo desktop non consente ai programmi di leggere lo schermo: il prelievo del colore dallo schermo non è disponibile</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio - debug del dispositivo</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Tasto sinistro</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Tasto destro</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Tasto centrale</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Rotella a sinistra</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Rotella a destra</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Rotella su</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Rotella giù</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Pagina giù</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Tasti di base</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Tasti estesi</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Combinazione di tasti</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Funzioni di sistema</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Funzioni mouse</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Assegna:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>宏%1</source>
        <translation>Macro %1</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Riproduzione:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Ripetizioni</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Finché premuto</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro non registrata</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Tasti di base</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Tasti estesi</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Combinazione:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Conferma</translation>
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
        <translation>Dispositivo: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Firmware tastiera: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Firmware ricevitore: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Versione attuale: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Cerca aggiornamenti firmware della tastiera</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Cerca aggiornamenti firmware del ricevitore</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Info su Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Switch magnetici</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Illuminazione</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Profilo %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Associa</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibrazione corsa</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Illuminazione</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Batteria</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Tasti avanzati</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Livello Fn</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Scegli un tasto</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Fai clic sulla tastiera qui sopra sul tasto da modificare.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Scegli la funzione</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>Una combinazione di tasti, una macro, una funzione di sistema o del mouse.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Cancella o disattiva</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Fai clic destro su un tasto per cancellarne l’impostazione o disattivarlo.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Personalizzato / Livello Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Tasti personalizzati</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Tasti del livello Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Fai prima clic su un tasto qui sopra; nella finestra che si apre scegli una combinazione di tasti, una macro, una funzione di sistema o del mouse.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Corsa dinamica</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Tieni/Tocca</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Commutatore</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Tasto di sistema</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Eliminare questa creazione?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Mia creazione %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Anteprima,Nome,Gestisci</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Le mie creazioni</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Livello %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Fai clic su un tasto, o trascina un riquadro da un punto libero della tastiera, per colorare. Scegliere un livello da scrivere invia il disegno alla tastiera; scegliere un livello da leggere lo riporta indietro.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Contagocce:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Contagocce</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Colore casuale:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Scrivi nel livello:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Leggi dal livello:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Ritardo</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Usati</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Ferma registrazione</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Avvia registrazione</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nuova macro</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Ritardo fisso (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Rilascio</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Durante la registrazione, i tasti e i clic su questa pagina vengono registrati</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Fai clic su “Avvia registrazione”, poi premi tasti o fai clic qui; oppure aggiungi eventi uno alla volta con “Inserisci”</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Corsa</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zone morte</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Tipo di switch</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilizzazione</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Tasti selezionati</translation>
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
        <translation>Meccanico</translation>
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
        <translation>Low profile</translation>
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
        <translation>Personalizzato</translation>
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
        <translation>Rapid trigger (tutti)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Corsa (tutti i tasti)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Impostazioni di sistema</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Avvia questo programma all’accesso</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Calibrazione corsa</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Premi ogni tasto, uno alla volta, delicatamente fino in fondo e tienilo premuto almeno un secondo, finché diventa arancione (quel tasto è calibrato). Non saltarne nessuno; premere di nuovo un tasto non fa danni. Con la connessione wireless i tasti calibrati non vengono mostrati. Non scollegare il cavo durante la calibrazione.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guida alla calibrazione della corsa</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Avvia calibrazione</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Termina calibrazione</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Elimina macro</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Sinistro</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Destro</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Centrale</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Inserisci qui</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Elimina questo evento</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Tasti selezionati: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zone morte</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Zone morte dei tasti</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>La corsa tra il fondo e l’inizio del rilascio si chiama &quot;zona morta&quot;. Le zone morte evitano che uno switch magnetico perda contatto per interferenze esterne. Il fondo di uno switch magnetico si può regolare a piacere; dentro una zona morta il tasto non si attiva.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Zona morta superiore</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Zona morta inferiore</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (spento)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Spento</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (stabilizzazione del rapid trigger)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Con RT Stab attivo, la tastiera stabilizza il fondo della corsa. Più alto il livello, più stabili i tasti, con un po’ più di latenza.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Anti-pressione accidentale</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Con le impostazioni più sensibili, una scrivania che vibra o una tolleranza dello switch fino a 0,1 mm possono attivare un tasto per errore. Se attivo, la tastiera compensa questa differenza in fondo alla corsa ed è più stabile.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Spento)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Tipo di switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Dopo aver cambiato gli switch, scegli un tipo qui sotto, poi fai clic sui tasti che lo montano: ogni tasto viene impostato subito e mostra il colore del suo tipo di switch.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Test della corsa</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Test dei tasti</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Tasti ricevuti</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Corsa</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Premi/rilascia separati:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid trigger su tutta la corsa (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>Attivo: l’RT termina solo a tasto rilasciato del tutto.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Spento: l’RT termina sopra il punto di attivazione.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Nuova pressione e reset separati</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Corsa per riattivare alla pressione (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Corsa per il reset al rilascio (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>I miei dispositivi</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Mostra finestra</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Nascondi finestra</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Ricerca dispositivi</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Uscire dal driver ORBE?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Cerca di nuovo</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Fai clic su un dispositivo per configurarlo</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>Avvio del driver di “%1”...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>Il driver di “%1” non è installato. Reinstalla il driver ORBE e riprova.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Scegli il tipo di evento macro da aggiungere</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Tasto della tastiera</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Tasto del mouse</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Posizione del mouse</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Premi un tasto......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sinistro</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Centrale</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Destro</translation>
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
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Corsa dinamica (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Tieni/Tocca (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Commutatore (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Tasto</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Funzione</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>Un tasto, fino a quattro funzioni in quattro punti della corsa. Scegli il tasto sulla tastiera qui sopra; fai clic su un valore di corsa per spostarne il punto.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>Al tocco</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>Tenendo premuto</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Scegli un tasto qui sopra e assegnagli due funzioni, una per il tocco e una per la pressione prolungata (anche combinazioni di tasti).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Per quanto tempo tenere premuto il tasto perché conti come pressione prolungata</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Scegli un tasto qui sopra e assegnagli una funzione; una pressione la attiva e la successiva la disattiva, come ripetizione o come pressione prolungata.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Ripetizione</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Tieni premuto</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Collega due tasti, ognuno scelto sulla tastiera qui sopra: quando sono premuti entrambi, vince l’ultimo premuto.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Tasto A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Tasto B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Nessuna funzione</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tocco</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Tieni</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Pressione (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>Nessuna funzione</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Polling rate</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G: luci spente</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth: luci spente</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G: sospensione dopo</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth: sospensione dopo</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Livello di debounce</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Arcobaleno</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Spento</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fisso</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiro</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Flusso</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Preimpostati</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Luce laterale</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Tasto singolo</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effetto:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Velocità:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Luminosità:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Contagocce</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Fai clic su un colore: ruota al centro e illumina i tasti</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Luminosità</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Fisso</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiro</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteora</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Increspatura</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Gocce di pioggia</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Convergenza</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Flusso</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Cielo stellato</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Ombra</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinusoide</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fontana</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Fioritura</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Due uccelli</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Tornanti</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Pioggerellina</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Orme sulla neve</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Strati infiniti</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Luce e ombra</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Musica</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Immagine personalizzata</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Zigzag</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spirale</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Verso l’interno</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Verso l’esterno</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Verso destra</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Verso sinistra</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Motivo 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Motivo 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Motivo 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Motivo 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Motivo 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Senso orario</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Senso antiorario</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Effetto luce</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Riproduzione:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>Attivo: luci della tastiera spente</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Velocità</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Brano precedente</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Brano successivo</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Riproduci/Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Muto</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Volume +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volume -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Lettore multimediale</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calcolatrice</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Posta</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Risorse del computer</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Pagina iniziale</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Luminosità schermo +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Luminosità schermo -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Assistente vocale</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Cambia metodo di input</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Blocco Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Blocca schermo</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Tasto Fn destro</translation>
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
        <translation>Accensione</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Sospensione</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Riattiva</translation>
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
        <translation>Tasto Fn sinistro</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Ripristino di fabbrica</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Blocca tasto Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Modalità Windows</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Modalità Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Cambia sistema</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Scambia WASD e frecce</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Cambia livello Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Risparmio energetico</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Scambia APP/CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Retroilluminazione on/off</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Retroill.: ciclo effetti</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Retroill.: effetto +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Retroill.: effetto -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Retroill.: ciclo luminosità</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Retroill.: luminosità +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Retroill.: luminosità -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Retroill.: ciclo velocità</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Retroill.: velocità -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Retroill.: velocità +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Retroill.: ciclo direzione</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Retroill.: verso sinistra</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Retroill.: verso destra</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Retroill.: ciclo colori</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Retroill.: colore +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Retroill.: colore -</translation>
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
        <translation>Luce laterale on/off</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Luce laterale: ciclo luminosità</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Luce laterale: ciclo velocità</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Luce laterale: velocità +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Luce laterale: velocità -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Luce laterale: ciclo colori</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Luce laterale: colore +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Luce laterale: colore -</translation>
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
        <translation>Cablato</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Cablato-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Associa 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Associa Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Tasto Ins</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Tasto Stamp</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Clic sinistro</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Clic destro</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Clic centrale</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Tasto Avanti</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Tasto Indietro</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Rotella a sinistra</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Rotella a destra</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Rotella su</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Rotella giù</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Pagina giù</translation>
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
        <translation>Macro</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Funzione</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinazione</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Tasto selezionato</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Tasto modificato</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Tasto disattivato</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Cancella impostazione</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Disattiva tasto</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Riattiva tasto</translation>
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
        <translation>Pressione (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Rilascio (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nuova macro</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Trascina il puntatore o premi − / +: tutti i tasti prendono subito il valore.</translation>
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
        <translation>Orbe 7090 guida: macro</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
