<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="zh_CN">
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>中键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>前移</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>后移</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>左滚</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右滚</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>上滚</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>下滚</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>组合键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>宏%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自动</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按下</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确认</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关于</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>用户</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>返回</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>对码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>高级键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>提示</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>图%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取色器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>更新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>占用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>字节</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>插入</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清空</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>松开</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按下</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>高特</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁玉</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁玉pro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁玉gaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>天王</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>万磁王</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>机械轴</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>星引力</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>炫光</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>闪电</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>星耀</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>矮磁轴</source>
        <extracomment>冠泰轴</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自定义</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁玉Pro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁玉Gaming</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>中键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已开启</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输入值</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>提示</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最小化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>退出</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>左键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>中键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X(0 ~ 127):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y(0 ~ 127):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>单击时</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按住时</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>连点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>长按</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未选择</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>单击</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按住</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自定义</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>常亮</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>光波</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>单键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>速度：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取色器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>流星</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>极光</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>聚合</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>光波</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>光影</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自定义</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>左</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>上</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>下</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z形</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>回形</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向内</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向外</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向右</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向左</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>图案1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>图案2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>图案3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>图案4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>图案5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>停止</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>静音</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>音量+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>音量-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>播放器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>计算器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>邮件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>主页</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>后退</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>前进</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>刷新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>收藏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>放大</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>缩小</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>返回</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DPI+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DPI-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DPI-Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>电源</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L-Fn键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.4G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>蓝牙1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>蓝牙2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>蓝牙3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>有线</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XUP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XDOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YUP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YDOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>组合</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleLangMenu</name>
    <message>
        <source>中文简体</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>中文繁体</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>日本語</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>한국어</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Русский</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiếng Việt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Português</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ภาษาไทย</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Français</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Svenska</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italiano</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Türkçe</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
