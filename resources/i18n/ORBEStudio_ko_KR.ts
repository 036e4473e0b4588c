<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
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
        <translation>명령,데이터 길이,Byte0
명령 번호(Hex),Byte1
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
        <translation>완료</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>누른 채로 화면의 원하는 위치로 드래그해 색상을 추출합니다</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>이 데스크톱은 프로그램의 화면 읽기를 허용하지 않아 화면에서 색상을 추출할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio 장치 디버깅</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>왼쪽 버튼</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>오른쪽 버튼</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>가운데 버튼</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>휠 왼쪽</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>휠 오른쪽</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>휠 위로</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>휠 아래로</translation>
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
        <translation>기본 키</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>확장 키</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>키 조합</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>매크로</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>시스템 기능</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>마우스 기능</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>할당:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>宏%1</source>
        <translation>매크로 %1</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>재생 모드:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>반복 횟수</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>누르는 동안</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>녹화되지 않은 매크로</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>기본 키</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>확장 키</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>조합:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>장치 이름: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>키보드 펌웨어 버전: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>무선 수신기 펌웨어 버전: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>현재 버전: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>키보드 펌웨어 업데이트 확인</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>수신기 펌웨어 업데이트 확인</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>사용 안내</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Orbe 정보</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>키 설정</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>자석축 설정</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>매크로</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>조명 효과</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>온보드 %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>페어링</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>기본값 복원</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>키 트래블 보정</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>조명 설정</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>배터리</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>고급 키</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>기타 설정</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn 레이어</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>키 선택</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>위 키보드에서 변경할 키를 클릭하세요.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>기능 선택</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>키 조합, 매크로, 시스템 기능 또는 마우스 기능.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>해제 또는 비활성화</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>키를 오른쪽 클릭하면 설정을 해제하거나 키를 비활성화할 수 있습니다.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>사용자 지정 / Fn 레이어</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>사용자 지정 키</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Fn 레이어 키</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*먼저 위에서 키를 클릭한 뒤, 열리는 창에서 키 조합, 매크로, 시스템 기능 또는 마우스 기능을 선택하세요.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>다이나믹 키스트로크</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>홀드/탭</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>토글</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>매크로</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>시스템 키</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>이 작품을 삭제할까요?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>내 작품 %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>미리보기,이름,관리</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>내 작품</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>레이어 %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>키를 클릭하거나 키보드의 빈 곳에서 드래그해 영역을 선택하여 색을 칠합니다. 쓸 레이어를 선택하면 그림을 키보드로 보내고, 읽을 레이어를 선택하면 키보드에서 가져옵니다.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>색상:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>스포이트:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>스포이트</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>무작위 색상:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>레이어에 쓰기:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>레이어에서 읽기:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>바이트</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>녹화 중지</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>녹화 시작</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>매크로 목록</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>새 매크로</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>삽입</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>모두 지우기</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>고정 지연 설정(ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>떼기</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>누르기</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>녹화 중에는 이 페이지에서 누른 키와 클릭이 기록됩니다</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>“녹화 시작”을 클릭한 뒤 키를 누르거나 여기를 클릭하세요. 또는 “삽입”으로 이벤트를 하나씩 추가하세요</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>키 트래블</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>데드존</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>스위치 종류</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>안정화</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>선택한 키 수</translation>
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
        <translation>기계식</translation>
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
        <translation>로우 프로파일</translation>
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
        <translation>사용자 지정</translation>
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
        <translation>래피드 트리거(전체 키)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>키 트래블(전체 키)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>시스템 설정</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>로그인할 때 이 프로그램 자동 실행</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>키 트래블 보정</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>각 키를 차례로 끝까지 살짝 눌러 주황색이 될 때까지(해당 키 보정 완료) 1초 이상 누르고 계세요. 빠뜨리지 말고, 같은 키를 다시 눌러도 괜찮습니다. 무선 연결에서는 보정된 키가 표시되지 않습니다. 보정 중에는 케이블을 뽑지 마세요.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>키 트래블 보정 안내</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>보정 시작</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>보정 완료</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>매크로 삭제</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>여기에 삽입</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>이 이벤트 삭제</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>선택한 키 수:0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>데드존</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>키 데드존</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>바닥에 닿은 뒤 떼기 시작할 때까지의 거리를 &quot;데드존&quot;이라고 합니다. 데드존은 외부 간섭으로 자석축 입력이 끊기는 것을 막아 줍니다. 자석축의 바닥 위치는 원하는 대로 설정할 수 있으며, 데드존 안에서는 키가 동작하지 않습니다.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>상단 데드존</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>하단 데드존</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0%(끔)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab(래피드 트리거 안정화)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab을 켜면 키보드가 트래블 바닥 부분을 안정시킵니다. 단계가 높을수록 더 안정적이지만 지연이 약간 늘어납니다.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>오입력 방지</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>가장 민감한 설정에서는 책상 흔들림이나 최대 0.1mm의 스위치 공차로 키가 잘못 입력될 수 있습니다. 켜면 키보드가 트래블 바닥에서 그 차이를 보정해 더 안정적으로 동작합니다.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(꺼짐)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>스위치 종류</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>스위치를 교체한 뒤 아래에서 종류를 고르고, 그 스위치를 단 키를 클릭하세요. 키는 바로 설정되고 스위치 종류의 색으로 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>트래블 테스트</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>키 테스트</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>입력된 키</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>키 트래블</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>누름과 뗌 따로 설정:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>전 구간 래피드 트리거(RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>켜짐: 키를 완전히 뗐을 때만 래피드 트리거가 끝납니다.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>꺼짐: 키가 작동 지점 위로 올라가면 래피드 트리거가 끝납니다.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>재입력과 리셋 트래블 따로 설정</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>다시 눌러 입력되는 트래블(mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>떼서 리셋되는 트래블(mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>내 장치</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>창 보이기</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>창 숨기기</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>장치 검색 중</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>ORBE 드라이버를 종료할까요?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>다시 검색</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>장치를 클릭해 설정하세요</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>“%1” 드라이버를 시작하는 중...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>“%1” 드라이버가 설치되어 있지 않습니다. ORBE 드라이버를 다시 설치한 후 다시 시도하세요.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>삽입</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>추가할 매크로 이벤트 종류를 선택하세요</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>키보드 키</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>마우스 버튼</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>마우스 위치</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>키를 누르세요......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>오른쪽</translation>
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
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>다이나믹 키스트로크(DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>홀드/탭(MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>토글(TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>키</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>하나의 키에 트래블의 네 지점마다 기능을 하나씩 지정합니다. 위 키보드에서 키를 고르고, 트래블 값을 클릭해 지점을 옮기세요.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>탭할 때</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>홀드할 때</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>위에서 키를 고르고 탭과 홀드에 각각 기능을 지정하세요(키 조합도 가능).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>“홀드”로 인식되기까지 눌러야 하는 시간</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>위에서 키를 고르고 기능을 지정하세요. 한 번 누르면 켜지고 다시 누르면 꺼지며, 연타 또는 홀드로 동작합니다.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>연타</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>위 키보드에서 두 키를 각각 골라 묶습니다. 둘 다 누르고 있으면 마지막에 누른 키가 우선합니다.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>A 키</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>B 키</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>기능 없음</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>홀드</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>누름(mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>기능 없음</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>폴링 레이트</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G 백라이트 끄기</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>블루투스 백라이트 끄기</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G 딥 슬립 시간</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>블루투스 딥 슬립 시간</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>디바운스 레벨</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>레인보우</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>상시 점등</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>숨쉬기</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>스트림</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>네온</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>웨이브</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>사이드 라이트</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>단일 키</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>효과:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>속도:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>밝기:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>색상:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>스포이트</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>색을 클릭하면 가운데로 돌아와 키의 조명 색이 됩니다</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>밝기</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>상시 점등</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>숨쉬기</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>유성</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>물결</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>오로라</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>빗방울</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>모이기</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>스트림</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>네온</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>웨이브</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>별빛</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>그림자</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>사인파</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>분수</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>꽃밭</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>일석이조</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>굽이길</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>이슬비</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>눈 발자국</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>끝없는 물결</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>빛과 그림자</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>음악</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>사용자 이미지</translation>
    </message>
    <message>
        <source>左</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>右</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>上</source>
        <translation>위</translation>
    </message>
    <message>
        <source>下</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>지그재그</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>나선</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>안쪽으로</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>바깥쪽으로</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>오른쪽으로</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>왼쪽으로</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>패턴 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>패턴 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>패턴 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>패턴 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>패턴 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>시계 방향</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>반시계 방향</translation>
    </message>
    <message>
        <source>无</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>조명 효과</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>재생 모드:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>켜면 키보드 조명이 꺼집니다</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>속도</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>이전 곡</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>다음 곡</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>재생/일시정지</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>볼륨+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>볼륨-</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>미디어 플레이어</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>계산기</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>메일</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>내 컴퓨터</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>홈페이지</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>화면 밝기+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>화면 밝기-</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>음성 비서</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>입력기 전환</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>돌아가기</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn 잠금</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>화면 잠금</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>오른쪽 Fn 키</translation>
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
        <translation>전원</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>절전</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>깨우기</translation>
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
        <translation>왼쪽 Fn 키</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>공장 초기화</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Win 키 잠금</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Windows 모드</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mac 모드</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>시스템 전환</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>WASD/방향키 전환</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Fn 레이어 전환</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>절전 모드</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>APP/CTRL 전환</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>백라이트 켜기/끄기</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>백라이트 효과 순환</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>백라이트 효과+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>백라이트 효과-</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>백라이트 밝기 순환</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>백라이트 밝기+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>백라이트 밝기-</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>백라이트 속도 순환</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>백라이트 속도-</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>백라이트 속도+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>백라이트 방향 순환</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>백라이트 왼쪽으로</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>백라이트 오른쪽으로</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>백라이트 색상 순환</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>백라이트 색상+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>백라이트 색상-</translation>
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
        <translation>사이드 라이트 켜기/끄기</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>사이드 라이트 밝기 순환</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>사이드 라이트 속도 순환</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>사이드 라이트 속도+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>사이드 라이트 속도-</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>사이드 라이트 색상 순환</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>사이드 라이트 색상+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>사이드 라이트 색상-</translation>
    </message>
    <message>
        <source>2.4G</source>
        <translation>2.4G</translation>
    </message>
    <message>
        <source>蓝牙1</source>
        <translation>블루투스 1</translation>
    </message>
    <message>
        <source>蓝牙2</source>
        <translation>블루투스 2</translation>
    </message>
    <message>
        <source>蓝牙3</source>
        <translation>블루투스 3</translation>
    </message>
    <message>
        <source>有线</source>
        <translation>유선</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>유선-블루투스-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G 페어링</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>블루투스 페어링</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert 키</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen 키</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>왼쪽 클릭</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>오른쪽 클릭</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>가운데 클릭</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>앞으로 버튼</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>뒤로 버튼</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>휠 왼쪽</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>휠 오른쪽</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>휠 위로</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>휠 아래로</translation>
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
        <translation>매크로</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>마우스</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>조합</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>선택한 키</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>변경된 키</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>비활성화된 키</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>설정 해제</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>키 비활성화</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>비활성화 해제</translation>
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
        <translation>누름(mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>뗌(mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>새 매크로</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>포인터를 드래그하거나 − / + 를 누르면 모든 키에 바로 적용됩니다.</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090 사용 가이드: 매크로 설정</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
