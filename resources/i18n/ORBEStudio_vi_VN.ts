<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="zh_CN">
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
        <translation>Lệnh,Độ dài dữ liệu,Byte0
Mã lệnh (Hex),Byte1
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
        <translation>Xong</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Giữ và kéo đến bất kỳ đâu trên màn hình để lấy màu</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Màn hình nền này không cho phép chương trình đọc màn hình: không thể lấy màu từ màn hình</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio - gỡ lỗi thiết bị</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Chuột trái</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Chuột phải</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Chuột giữa</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Tiến</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Lùi</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Cuộn trái</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Cuộn phải</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Cuộn lên</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Cuộn xuống</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Lên trang</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Xuống trang</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Phím cơ bản</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Phím mở rộng</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tổ hợp phím</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Chức năng hệ thống</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Chức năng chuột</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Gán chức năng:</translation>
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
        <translation>Chế độ phát:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Số lần lặp</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Tự động</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Khi giữ</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro chưa ghi</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Phím cơ bản</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Phím mở rộng</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Tổ hợp:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Xác nhận</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Tên thiết bị: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Phiên bản firmware bàn phím: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Phiên bản firmware bộ thu: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Phiên bản hiện tại: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Kiểm tra cập nhật firmware bàn phím</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Kiểm tra cập nhật firmware bộ thu</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Hướng dẫn</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Về Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Trang chủ</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Cài đặt phím</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Switch từ tính</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Hiệu ứng đèn</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Người dùng</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Bộ nhớ %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Ghép nối</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Khôi phục mặc định</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Hiệu chỉnh hành trình</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Cài đặt đèn</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Pin</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Tùy chỉnh</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Phím nâng cao</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Cài đặt khác</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Lớp Fn</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Chọn phím</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Nhấp vào phím cần đổi trên bàn phím phía trên.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Chọn chức năng</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>Tổ hợp phím, macro, chức năng hệ thống hoặc chức năng chuột.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Xóa hoặc vô hiệu hóa</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Nhấp chuột phải vào phím để xóa cài đặt hoặc vô hiệu hóa phím.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Tùy chỉnh / Lớp Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Phím tùy chỉnh</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Phím lớp Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Trước tiên nhấp một phím phía trên; trong hộp thoại hiện ra, chọn tổ hợp phím, macro, chức năng hệ thống hoặc chức năng chuột cho phím đó.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Hành trình động</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Giữ/Nhấn</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Bật/tắt</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Phím hệ thống</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Thông báo</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Xóa tác phẩm này?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Tác phẩm %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Xem trước,Tên,Quản lý</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Tác phẩm của tôi</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Lớp %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Nhấp vào phím, hoặc kéo khung từ chỗ trống của bàn phím, để tô màu. Chọn lớp ghi sẽ gửi hình vào bàn phím; chọn lớp đọc sẽ lấy hình từ bàn phím về.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Màu:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Bộ lấy màu:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Bộ lấy màu</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Màu ngẫu nhiên:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Ghi vào lớp:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Đọc từ lớp:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Tên:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lưu</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Độ trễ</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Đã dùng</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Dừng ghi</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Bắt đầu ghi</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Danh sách macro</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Macro mới</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Chèn</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Xóa hết</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Độ trễ cố định (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Nhả</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Nhấn</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Khi đang ghi, các phím và cú nhấp trên trang này được ghi lại</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Nhấp “Bắt đầu ghi” rồi nhấn phím hoặc nhấp vào đây; hoặc thêm từng sự kiện bằng “Chèn”</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Hành trình</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Vùng chết</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Loại switch</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Ổn định</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Kiểm tra</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Số phím đã chọn</translation>
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
        <translation>Cơ học</translation>
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
        <translation>Tùy chỉnh</translation>
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
        <translation>Rapid Trigger (mọi phím)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Hành trình phím (mọi phím)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Cài đặt hệ thống</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Khởi động chương trình này khi đăng nhập</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Hiệu chỉnh hành trình</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Lần lượt nhấn nhẹ từng phím xuống hết cỡ và giữ ít nhất một giây, cho đến khi phím chuyển màu cam (phím đó đã hiệu chỉnh xong). Đừng bỏ sót phím nào; nhấn lại một phím cũng không sao. Khi kết nối không dây, các phím đã hiệu chỉnh không được hiển thị. Không rút cáp trong khi hiệu chỉnh.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Hướng dẫn hiệu chỉnh hành trình</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Bắt đầu hiệu chỉnh</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Hoàn tất hiệu chỉnh</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Đổi tên</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Xóa macro</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Phải</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Giữa</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Chèn vào đây</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Xóa sự kiện này</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Số phím đã chọn: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Vùng chết</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Vùng chết của phím</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Quãng từ lúc chạm đáy đến lúc bắt đầu nhả gọi là &quot;vùng chết&quot;. Vùng chết giúp switch từ tính không bị mất tín hiệu do nhiễu bên ngoài. Đáy của switch từ tính có thể tùy chỉnh theo ý bạn; trong vùng chết phím sẽ không kích hoạt.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Áp dụng</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Vùng chết trên</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Vùng chết dưới</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (tắt)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Bật</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Tắt</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (ổn định Rapid Trigger)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Khi bật RT Stab, bàn phím sẽ ổn định phần đáy hành trình. Mức càng cao phím càng ổn định, đổi lại độ trễ tăng một chút.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Chống bấm nhầm</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Ở mức nhạy nhất, bàn rung hoặc dung sai switch đến 0,1 mm có thể làm phím kích hoạt nhầm. Khi bật, bàn phím bù phần chênh lệch đó ở đáy hành trình và ổn định hơn.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Tắt)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Loại switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Sau khi thay switch, chọn loại bên dưới rồi nhấp vào các phím dùng loại đó: mỗi phím được đặt ngay và hiện màu của loại switch.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Kiểm tra hành trình</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Kiểm tra phím</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Phím nhận được</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Hành trình</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Áp dụng</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Nhấn và nhả riêng:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger toàn hành trình (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>Bật: Rapid Trigger chỉ kết thúc khi nhả phím hoàn toàn.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Tắt: Rapid Trigger kết thúc khi phím lên quá điểm kích hoạt.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Nhấn lại và đặt lại riêng</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Hành trình để kích hoạt lại khi nhấn (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Hành trình để đặt lại khi nhả (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Thiết bị của tôi</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Hiện cửa sổ</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Ẩn cửa sổ</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Thoát</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Đang tìm thiết bị</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Thông báo</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Thoát trình điều khiển ORBE?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Thoát</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Tìm lại</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Nhấp vào thiết bị để cài đặt</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>Đang khởi động trình điều khiển của “%1”...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>Trình điều khiển của “%1” chưa được cài đặt. Hãy cài đặt lại trình điều khiển ORBE rồi thử lại.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Chèn</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Chọn loại sự kiện macro cần thêm</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Phím bàn phím</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Nút chuột</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Vị trí chuột</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Hãy nhấn một phím......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Giữa</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Phải</translation>
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
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Hành trình động (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Giữ/Nhấn (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Bật/tắt (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Phím</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Chức năng</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>Một phím, tối đa bốn chức năng tại bốn điểm trên hành trình. Chọn phím trên bàn phím phía trên; nhấp vào giá trị hành trình để dời điểm đó.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>Khi nhấn</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>Khi giữ</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Chọn một phím phía trên và gán hai chức năng, một khi nhấn và một khi giữ (hỗ trợ cả tổ hợp phím).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Thời gian giữ phím để được tính là giữ</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Chọn một phím phía trên và gán chức năng; nhấn lần đầu để bật, lần sau để tắt, dạng nhấn liên tục hoặc giữ.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Nhấn liên tục</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Giữ</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Gắn hai phím, mỗi phím chọn trên bàn phím phía trên: khi cả hai cùng được giữ, phím nhấn sau cùng sẽ thắng.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Phím A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Phím B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Chưa chọn</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Chưa có chức năng</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Nhấn</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Giữ</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Nhấn (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lưu</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>Chưa có chức năng</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Tốc độ phản hồi</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>Tắt đèn nền khi 2.4G</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Tắt đèn nền khi Bluetooth</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>Ngủ sâu 2.4G sau</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Ngủ sâu Bluetooth sau</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Mức chống dội phím</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Cầu vồng</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Tùy chỉnh</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tắt</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Sáng đứng</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nhịp thở</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Dòng chảy</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Sóng</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Mặc định</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Đèn viền</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Từng phím</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Hiệu ứng:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Tốc độ:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Độ sáng:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Màu sắc:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Bộ lấy màu</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Nhấp một màu: màu đó sẽ thành màu đèn của phím</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Độ sáng</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Sáng đứng</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nhịp thở</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Sao băng</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Gợn sóng</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Cực quang</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Giọt mưa</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Hội tụ</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Dòng chảy</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Sóng</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Ánh sao</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Bóng theo</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sóng sin</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Đài phun</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Trăm hoa</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Hai chú chim</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Đường quanh co</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Mưa phùn</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Dấu chân tuyết</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Lớp lớp</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Ánh sáng và bóng</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Nhạc</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Hình tùy chỉnh</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Phải</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Lên</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Xuống</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Zíc zắc</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Xoắn ốc</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Vào trong</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Ra ngoài</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Sang phải</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Sang trái</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Hình 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Hình 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Hình 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Hình 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Hình 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Theo chiều kim đồng hồ</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Ngược chiều kim đồng hồ</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Không</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Hiệu ứng đèn</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Chế độ phát:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>Bật: tắt đèn bàn phím</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Tốc độ</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Bài trước</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Bài tiếp</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Phát/Tạm dừng</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Tắt tiếng</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Âm lượng +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Âm lượng -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Trình phát nhạc</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Máy tính bỏ túi</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Thư</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Máy tính của tôi</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Tìm kiếm</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Trang chủ</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Lùi</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Tiến</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Làm mới</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Yêu thích</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Độ sáng màn hình +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Độ sáng màn hình -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Trợ lý giọng nói</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Đổi bộ gõ</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Khóa Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Khóa màn hình</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Phím Fn phải</translation>
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
        <translation>Nguồn</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Ngủ</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Đánh thức</translation>
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
        <translation>Phím Fn trái</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Khôi phục cài đặt gốc</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Khóa phím Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Chế độ Windows</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Chế độ Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Đổi hệ điều hành</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Đổi WASD và phím mũi tên</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Đổi lớp Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Tiết kiệm điện</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Đổi APP/CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Bật/tắt đèn nền</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Xoay vòng hiệu ứng đèn nền</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Hiệu ứng đèn nền +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Hiệu ứng đèn nền -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Xoay vòng độ sáng đèn nền</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Độ sáng đèn nền +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Độ sáng đèn nền -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Xoay vòng tốc độ đèn nền</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Tốc độ đèn nền -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Tốc độ đèn nền +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Xoay vòng hướng đèn nền</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Đèn nền sang trái</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Đèn nền sang phải</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Xoay vòng màu đèn nền</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Màu đèn nền +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Màu đèn nền -</translation>
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
        <translation>Bật/tắt đèn viền</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Xoay vòng độ sáng đèn viền</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Xoay vòng tốc độ đèn viền</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Tốc độ đèn viền +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Tốc độ đèn viền -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Xoay vòng màu đèn viền</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Màu đèn viền +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Màu đèn viền -</translation>
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
        <translation>Có dây</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Có dây-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Ghép nối 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Ghép nối Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Phím Insert</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Phím Print Screen</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Nhấp trái</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Nhấp phải</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Nhấp giữa</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Nút tiến</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Nút lùi</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Cuộn trái</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Cuộn phải</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Cuộn lên</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Cuộn xuống</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Lên trang</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Xuống trang</translation>
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
        <translation>Chức năng</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Chuột</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Tổ hợp</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Phím đang chọn</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Phím đã đổi</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Phím đã vô hiệu</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Xóa cài đặt</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Vô hiệu hóa phím</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Bật lại phím</translation>
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
        <translation>Nhấn (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Nhả (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Macro mới</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Kéo con trỏ hoặc bấm − / +: mọi phím nhận giá trị ngay.</translation>
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
        <translation>Orbe 7090 hướng dẫn: cài đặt macro</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
