<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="zh_CN">
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
        <translation>Komut,Veri uzunluğu,Byte0
Komut no (hex),Byte1
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
        <translation>Bitti</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Basılı tutup ekranda herhangi bir yere sürükleyerek rengini alın</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Bu masaüstü programların ekranı okumasına izin vermiyor: ekrandan renk alma kullanılamıyor</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio cihaz hata ayıklama</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Sol tuş</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Sağ tuş</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Orta tuş</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Teker sola</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Teker sağa</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Teker yukarı</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Teker aşağı</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Sayfa yukarı</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Sayfa aşağı</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Temel tuşlar</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Genişletilmiş tuşlar</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tuş kombinasyonu</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makrolar</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Sistem işlevleri</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Fare işlevleri</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Ata:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>宏%1</source>
        <translation>Makro %1</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Oynatma modu:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Tekrar</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Basılı tutulurken</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Kaydedilmemiş makro</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Temel tuşlar</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Genişletilmiş tuşlar</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Kombinasyon:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Onayla</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Cihaz adı: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Klavye yazılımı: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Alıcı yazılımı: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Geçerli sürüm: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Klavye yazılımı güncellemelerini denetle</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Alıcı yazılımı güncellemelerini denetle</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Eğitimler</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Orbe hakkında</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Ana sayfa</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Tuş ayarları</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Manyetik switchler</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makrolar</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Işık efektleri</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Kullanıcı</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Eşleştir</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Varsayılanlara dön</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Tuş yolu kalibrasyonu</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Aydınlatma</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Pil</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Gelişmiş tuşlar</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Diğer ayarlar</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn katmanı</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Bir tuş seçin</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Yukarıdaki klavyede değiştirmek istediğiniz tuşa tıklayın.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>İşlevini seçin</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>Bir tuş kombinasyonu, makro, sistem işlevi veya fare işlevi.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Temizle veya devre dışı bırak</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Ayarını temizlemek veya tuşu devre dışı bırakmak için tuşa sağ tıklayın.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Özel / Fn katmanı</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Özel tuşlar</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Fn katmanı tuşları</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Önce yukarıdan bir tuşa tıklayın; açılan pencerede ona bir tuş kombinasyonu, makro, sistem işlevi veya fare işlevi seçin.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Dinamik tuş vuruşu</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Basılı tut/Dokun</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Aç/Kapa</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Sistem tuşu</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Bildirim</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Bu çalışma silinsin mi?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Çalışmam %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Önizleme,Ad,Yönet</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Çalışmalarım</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Katman %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Boyamak için bir tuşa tıklayın ya da klavyenin boş bir yerinden çerçeve sürükleyin. Yazılacak katmanı seçmek çizimi klavyeye gönderir; okunacak katmanı seçmek klavyeden geri alır.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Renk:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Renk seçici:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Renk seçici</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Rastgele renk:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Katmana yaz:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Katmandan oku:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Güncelle</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Kaydet</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Gecikme</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Kullanılan</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>bayt</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Kaydı durdur</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Kaydı başlat</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Makrolar</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Yeni makro</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Sabit gecikme (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Bırak</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Kayıt sırasında bu sayfadaki tuşlar ve tıklamalar kaydedilir</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>“Kaydı başlat”a tıklayın, ardından tuşlara basın veya buraya tıklayın; ya da olayları “Ekle” ile tek tek ekleyin</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Tuş yolu</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Ölü bölgeler</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switch türü</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Dengeleme</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Testler</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Seçili tuşlar</translation>
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
        <translation>Mekanik</translation>
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
        <translation>Alçak profil</translation>
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
        <translation>Özel</translation>
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
        <translation>Rapid trigger (tümü)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Tuş yolu (tümü)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Sistem ayarları</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Oturum açtığımda bu programı başlat</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Tuş yolu kalibrasyonu</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Her tuşa sırayla yavaşça sonuna kadar basın ve turuncuya dönene kadar (o tuş kalibre edildi) en az bir saniye basılı tutun. Hiçbirini atlamayın; bir tuşa yeniden basmanın zararı yok. Kablosuz bağlantıda kalibre edilen tuşlar gösterilmez. Kalibrasyon sırasında kabloyu çıkarmayın.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Tuş yolu kalibrasyon kılavuzu</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Kalibrasyonu başlat</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Kalibrasyonu bitir</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Makroyu sil</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Buraya ekle</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Bu olayı sil</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Seçili tuşlar: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Ölü bölgeler</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Tuş ölü bölgeleri</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Dibe vurma ile bırakmanın başlangıcı arasındaki yola &quot;ölü bölge&quot; denir. Ölü bölgeler, manyetik switch&apos;in dış parazitlerle kesilmesini önler. Manyetik switch&apos;in dibi isteğinize göre ayarlanabilir; ölü bölge içinde tuş tetiklenmez.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Üst ölü bölge</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Alt ölü bölge</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>%0 (kapalı)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (rapid trigger dengeleme)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab açıkken klavye, tuş yolunun dibini dengeler. Seviye ne kadar yüksekse tuşlar o kadar dengeli olur, ama gecikme biraz artar.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Yanlış basma koruması</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>En hassas ayarlarda sallanan bir masa ya da 0,1 mm&apos;ye kadar switch toleransı bir tuşu yanlışlıkla tetikleyebilir. Açıkken klavye bu farkı tuş yolunun dibinde telafi eder ve daha dengeli olur.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Kapalı)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switch türü</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Switch değiştirdikten sonra aşağıdan bir tür seçin, ardından o switch&apos;i taşıyan tuşlara tıklayın: her tuş hemen ayarlanır ve switch türünün rengini gösterir.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Tuş yolu testi</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Tuş testi</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Alınan tuşlar</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Tuş yolu</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Basma ve bırakma ayrı:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Tüm yolda rapid trigger (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>Açık: rapid trigger yalnızca tuş tamamen bırakıldığında biter.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Kapalı: rapid trigger, tetikleme noktasının üstünde biter.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Yeniden basma ve sıfırlama ayrı</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Basınca yeniden tetikleme yolu (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Bırakınca sıfırlama yolu (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Cihazlarım</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Pencereyi göster</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Pencereyi gizle</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Cihazlar aranıyor</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Bildirim</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>ORBE sürücüsünden çıkılsın mı?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Küçült</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Yeniden ara</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Ayarlamak için bir cihaza tıklayın</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>“%1” sürücüsü başlatılıyor...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>“%1” sürücüsü yüklü değil. ORBE sürücüsünü yeniden yükleyip tekrar deneyin.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Eklenecek makro olayının türünü seçin</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Klavye tuşu</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Fare tuşu</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Fare konumu</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Bir tuşa basın......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Sağ</translation>
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
        <translation>Tamam</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Dinamik tuş vuruşu (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Basılı tut/Dokun (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Aç/Kapa (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Tuş</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>İşlev</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>Tek tuş, yolunun dört noktasında dörde kadar işlev. Tuşu yukarıdaki klavyeden seçin; noktasını taşımak için bir yol değerine tıklayın.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>Dokununca</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>Basılı tutunca</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Yukarıdan bir tuş seçip ona iki işlev verin: biri dokunma, biri basılı tutma için (tuş kombinasyonları da olur).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Basılı tutma sayılması için tuşun ne kadar tutulması gerektiği</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Yukarıdan bir tuş seçip ona bir işlev verin; bir basış açar, sonraki kapatır; tekrarlı basış ya da basılı tutma olarak.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Tekrarla</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Basılı tut</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Yukarıdaki klavyeden seçilen iki tuşu bağlayın: ikisi birden basılıyken en son basılan geçerli olur.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>A tuşu</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>B tuşu</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>İşlev yok</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Dokun</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Basılı tut</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Basma (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Kaydet</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>İşlev yok</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Yoklama hızı</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G arka ışık kapalı</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth arka ışık kapalı</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G derin uyku süresi</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth derin uyku süresi</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Debounce seviyesi</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Gökkuşağı</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Sabit</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nefes</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Akış</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Dalga</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Hazır ayarlar</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Yan ışık</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Tek tuş</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Efekt:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Hız:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Parlaklık:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Renk:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Renk seçici</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Bir renge tıklayın: ortaya döner ve tuşları aydınlatır</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Parlaklık</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Sabit</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nefes</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Dalgacık</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Kutup ışığı</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Yağmur damlaları</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Toplanma</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Akış</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Dalga</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Yıldızlar</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Gölge</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinüs dalgası</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fıskiye</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Çiçeklenme</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>İki kuş</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Dolambaçlı yol</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Çisenti</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Kardaki izler</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Sonsuz katmanlar</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Işık ve gölge</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Müzik</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Özel resim</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Zikzak</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Sarmal</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>İçe doğru</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Dışa doğru</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Sağa doğru</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Sola doğru</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Desen 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Desen 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Desen 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Desen 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Desen 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Saat yönünde</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Saat yönünün tersine</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Işık efekti</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Oynatma modu:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>Açık: klavye ışıkları kapalı</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Hız</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Önceki parça</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Sonraki parça</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Oynat/Duraklat</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Sessiz</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Ses +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Ses -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Medya oynatıcı</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Hesap makinesi</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>E-posta</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Bilgisayarım</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Ana sayfa</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Yenile</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Sık kullanılanlar</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Ekran parlaklığı +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Ekran parlaklığı -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Sesli asistan</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Giriş yöntemini değiştir</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Geri dön</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn kilidi</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Ekranı kilitle</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Sağ Fn tuşu</translation>
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
        <translation>Güç</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Uyku</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Uyandır</translation>
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
        <translation>Sol Fn tuşu</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Fabrika ayarları</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Win tuşunu kilitle</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Windows modu</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mac modu</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Sistem değiştir</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>WASD ve okları değiştir</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Fn katmanı değiştir</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Güç tasarrufu</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>APP/CTRL değiştir</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Arka ışık aç/kapa</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Arka ışık efekt döngüsü</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Arka ışık efekti +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Arka ışık efekti -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Arka ışık parlaklık döngüsü</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Arka ışık parlaklığı +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Arka ışık parlaklığı -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Arka ışık hız döngüsü</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Arka ışık hızı -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Arka ışık hızı +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Arka ışık yön döngüsü</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Arka ışık sola</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Arka ışık sağa</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Arka ışık renk döngüsü</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Arka ışık rengi +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Arka ışık rengi -</translation>
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
        <translation>Yan ışık aç/kapa</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Yan ışık parlaklık döngüsü</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Yan ışık hız döngüsü</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Yan ışık hızı +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Yan ışık hızı -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Yan ışık renk döngüsü</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Yan ışık rengi +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Yan ışık rengi -</translation>
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
        <translation>Kablolu</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Kablolu-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G eşleştirme</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth eşleştirme</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert tuşu</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen tuşu</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Sol tık</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Sağ tık</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Orta tık</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>İleri tuşu</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Geri tuşu</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Teker sola</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Teker sağa</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Teker yukarı</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Teker aşağı</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Sayfa yukarı</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Sayfa aşağı</translation>
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
        <translation>İşlev</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Fare</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Kombinasyon</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Seçili tuş</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Değiştirilmiş tuş</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Devre dışı tuş</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Ayarı temizle</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Tuşu devre dışı bırak</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Tuşu etkinleştir</translation>
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
        <translation>Basma (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Bırakma (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Yeni makro</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>İşaretçiyi sürükleyin ya da − / + basın: değer tüm tuşlara hemen uygulanır.</translation>
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
        <translation>Orbe 7090 kılavuzu: makrolar</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
