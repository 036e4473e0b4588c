<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
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
        <translation>Command,Data length,Byte0
Command (hex),Byte1
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
        <translation>Done</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Hold and drag anywhere on the screen to pick its colour</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>This desktop doesn&apos;t let programs read the screen: picking a colour from the screen is unavailable</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio device debugging</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Left button</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Right button</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Middle button</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Wheel left</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Wheel right</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Wheel up</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Wheel down</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Basic keys</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Extended keys</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Key combination</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>System functions</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Mouse functions</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Assign:</translation>
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
        <translation>Play mode:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Repeat</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>While held</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro not recorded</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Basic keys</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Extended keys</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Combination:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Confirm</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Device name: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Keyboard firmware version: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Wireless receiver firmware version: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Current version: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Check for keyboard firmware updates</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Check for receiver firmware updates</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutorials</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>About Orbe</translation>
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
        <translation>Key settings</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Magnetic switches</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Lighting effects</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>User</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Onboard %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Pairing</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Restore defaults</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Travel calibration</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Lighting</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Battery</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Advanced keys</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Other settings</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn layer</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Pick a key</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Click the key to change on the keyboard above.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Choose what it does</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>A key combination, a macro, a system function or a mouse function.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Clear or disable</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Right-click a key to clear its setting or to disable it.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Custom / Fn layer</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Custom keys</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Fn layer keys</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Click a key above first; in the dialog that opens, choose a key combination, a macro, a system function or a mouse function for it.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Dynamic keystroke</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Hold/Tap</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Toggle</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>System key</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Delete this work?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>My work %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Preview,Name,Manage</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>My works</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Layer %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Click a key, or drag a box from a free spot of the keyboard, to paint. Choosing a layer to write sends the painting to the keyboard; choosing a layer to read brings one back.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Colour picker:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Colour picker</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Random colour:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Write to layer:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Read from layer:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Delay</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Stop recording</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Start recording</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>New macro</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Set fixed delay (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Release</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Press</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>While recording, keys and clicks on this page are recorded</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Click “Start recording”, then press keys or click here; or add events one by one with “Insert”</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Travel</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Dead zones</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switch type</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilisation</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Keys selected</translation>
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
        <translation>Mechanical</translation>
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
        <translation>Low-profile</translation>
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
        <translation>Custom</translation>
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
        <translation>Rapid trigger (all keys)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Key travel (all keys)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>System settings</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Start this program when I log in</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Travel calibration</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Press each key gently all the way down in turn and hold it there for at least one second, until it turns orange (that key is calibrated). Miss none; pressing a key again does no harm. Over a wireless link the calibrated keys are not shown. Do not unplug the cable while calibrating.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Travel calibration guide</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Start calibration</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Finish calibration</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Delete macro</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Insert here</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Delete this event</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Keys selected: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Dead zones</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Key dead zones</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>The travel between bottoming out and the start of a release is called the &quot;dead zone&quot;. Dead zones keep a magnetic switch from dropping out under outside interference. The bottom of a magnetic switch can be set to suit you; within a dead zone the key does not trigger.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Top dead zone</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Bottom dead zone</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (off)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>On</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (rapid trigger stabilisation)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>With RT Stab on, the keyboard steadies the bottom of the travel. The higher the level, the steadier the keys, at the cost of a little more latency.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Anti-mistouch</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>At the most sensitive settings a shaking desk or a switch tolerance of up to 0.1 mm can trigger a key by mistake. When on, the keyboard makes up that difference at the bottom of the travel and stays steadier.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Off)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switch type</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>After changing switches, pick a type below, then click the keys that carry it: each key is set at once and shows the colour of its switch type.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Travel test</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Key test</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Keys received</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Travel</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Separate press and release:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Full-travel rapid trigger (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>On: rapid trigger ends only when the key is fully released.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Off: rapid trigger ends once the key rises past its actuation point.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Separate re-press and reset travel</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Travel to fire again on a press (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Travel to reset on a release (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>My devices</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Show window</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Hide window</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Searching for devices</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Quit the ORBE driver?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Search again</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Click a device to set it up</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>Starting the driver for “%1”...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>The driver for “%1” is not installed. Reinstall the ORBE driver and try again.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Choose the kind of macro event to add</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Keyboard key</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Mouse button</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Mouse position</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Press a key......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Right</translation>
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
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Dynamic keystroke (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Hold/Tap (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Toggle (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Function</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>One key, up to four functions at four points of its travel. Pick the key on the keyboard above; click a travel value to move its point.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>On tap</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>On hold</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Pick a key above and give it two functions, one for a tap and one for a hold (key combinations work too).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>How long the key must be held to count as a hold</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Pick a key above and give it a function; a press turns it on and the next turns it off, as repeated presses or as a hold.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Repeat</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Hold</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Bind two keys, each picked on the keyboard above: while both are held, the one pressed last wins.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Key A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Key B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>None</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>No function</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tap</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Hold</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Press (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>No function</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Report rate</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G backlight off</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth backlight off</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G deep sleep after</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth deep sleep after</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Debounce level</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Rainbow</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Steady</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Breathing</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Stream</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Wave</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Side light</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Single key</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effect:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Speed:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Brightness:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Colour picker</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Click a colour: it turns to the middle and lights the keys</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Brightness</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Steady</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Breathing</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Ripple</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Raindrops</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Converge</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Stream</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Wave</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Starlight</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Shadow</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sine wave</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fountain</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Blossom</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Two birds</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Winding path</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Drizzle</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Snow steps</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Endless layers</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Light and shadow</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom picture</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Zigzag</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spiral</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Inward</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Outward</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>To the right</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>To the left</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Picture 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Picture 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Picture 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Picture 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Picture 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Clockwise</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Anticlockwise</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Light effect</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Play mode:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>On: the keyboard&apos;s lights are off</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Speed</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Previous track</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Next track</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Play/Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Mute</translation>
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
        <translation>Media player</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calculator</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>My computer</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Home page</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favourites</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Brightness +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Brightness -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Voice assistant</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Switch input method</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn lock</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Lock screen</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Right Fn key</translation>
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
        <translation>Power</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Sleep</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Wake</translation>
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
        <translation>Left Fn key</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Factory reset</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Lock Win key</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Windows mode</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mac mode</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Switch system</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Swap WASD and arrows</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Switch Fn layer</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Power saving</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Switch APP/CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Backlight on/off</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Backlight effect cycle</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Backlight effect +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Backlight effect -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Backlight brightness cycle</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Backlight brightness +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Backlight brightness -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Backlight speed cycle</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Backlight speed -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Backlight speed +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Backlight direction cycle</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Backlight to the left</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Backlight to the right</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Backlight colour cycle</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Backlight colour +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Backlight colour -</translation>
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
        <translation>Side light on/off</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Side light brightness cycle</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Side light speed cycle</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Side light speed +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Side light speed -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Side light colour cycle</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Side light colour +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Side light colour -</translation>
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
        <translation>Wired</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Wired-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G pairing</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth pairing</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert key</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen key</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Left click</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Right click</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Middle click</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Forward button</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Back button</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Wheel left</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Wheel right</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Wheel up</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Wheel down</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Page down</translation>
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
        <translation>Function</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combination</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Selected key</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Modified key</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Disabled key</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Clear setting</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Disable key</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Enable key</translation>
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
        <translation>Press (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Release (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>New macro</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Drag the pointer or press − / +: every key takes the value at once.</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090 guide: macro settings</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
