<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio device debugging</translation>
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
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation type="unfinished"></translation>
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
