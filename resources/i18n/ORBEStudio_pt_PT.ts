<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="zh_CN">
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
        <translation>Comando,Comprimento dos dados,Byte0
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
        <translation>Concluído</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Mantenha premido e arraste para qualquer ponto do ecrã para recolher a cor</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Este ambiente de trabalho não deixa os programas ler o ecrã: recolher cor do ecrã não está disponível</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio - depuração do dispositivo</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Botão esquerdo</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Botão direito</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Botão do meio</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Roda para a esquerda</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Roda para a direita</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Roda para cima</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Roda para baixo</translation>
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
        <translation>Teclas básicas</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Teclas extra</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Combinação de teclas</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Funções do sistema</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Funções do rato</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Atribuir:</translation>
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
        <translation>Reprodução:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Repetições</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Enquanto premida</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro não gravada</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Teclas básicas</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Teclas extra</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Combinação:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Confirmar</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Acerca</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Dispositivo: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Firmware do teclado: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Firmware do recetor: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Versão atual: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Procurar atualizações do teclado</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Procurar atualizações do recetor</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutoriais</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Acerca da Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Switches magnéticos</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Iluminação</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Acerca</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Utilizador</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Perfil %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Emparelhar</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Repor predefinições</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibrar curso</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Iluminação</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Bateria</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Avançadas</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Outras opções</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Camada Fn</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Escolha uma tecla</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Clique no teclado acima na tecla que quer alterar.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Escolha a função</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>Uma combinação de teclas, uma macro, uma função do sistema ou do rato.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Limpar ou desativar</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Clique com o botão direito numa tecla para limpar a definição ou desativá-la.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Personalizado / Camada Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Teclas personalizadas</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Teclas da camada Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Clique primeiro numa tecla acima; na janela que abre, escolha para ela uma combinação de teclas, uma macro, uma função do sistema ou do rato.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Curso dinâmico</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Premir/Tocar</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Alternar</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Tecla de sistema</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Eliminar esta criação?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Criação %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Pré-visualização,Nome,Gerir</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>As minhas criações</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Camada %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Clique numa tecla, ou arraste uma caixa a partir de um espaço livre do teclado, para pintar. Escolher uma camada para escrever envia a pintura para o teclado; escolher uma camada para ler traz uma de volta.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Cor:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Conta-gotas:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Conta-gotas</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Cor aleatória:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Escrever na camada:</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Ler da camada:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Atraso</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Parar gravação</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Iniciar gravação</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nova macro</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Inserir</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Atraso fixo (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Soltar</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Premir</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Durante a gravação, as teclas e cliques nesta página são registados</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Clique em “Iniciar gravação” e depois prima teclas ou clique aqui; ou adicione eventos um a um com “Inserir”</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Curso</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zonas mortas</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Tipo de switch</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Estabilização</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Testes</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Teclas selecionadas</translation>
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
        <translation>Mecânico</translation>
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
        <translation>Perfil baixo</translation>
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
        <translation>Personalizado</translation>
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
        <translation>Rapid Trigger (todas)</translation>
    </message>
    <message>
        <source>键程设置(全局)</source>
        <translation>Curso (todas as teclas)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Definições do sistema</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Iniciar este programa ao iniciar sessão</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Calibrar curso</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Prima cada tecla, uma de cada vez, suavemente até ao fundo e mantenha-a pelo menos um segundo, até ficar laranja (essa tecla está calibrada). Não falte nenhuma; premir de novo uma tecla não faz mal. Numa ligação sem fios as teclas calibradas não são mostradas. Não desligue o cabo durante a calibração.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guia de calibração do curso</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Iniciar calibração</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Concluir calibração</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Eliminar macro</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Esquerdo</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Direito</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Meio</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Inserir aqui</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Eliminar este evento</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Teclas selecionadas: 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zonas mortas</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Zonas mortas das teclas</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>O curso entre o fundo e o início da libertação chama-se &quot;zona morta&quot;. As zonas mortas evitam que um switch magnético falhe por interferências externas. O fundo de um switch magnético pode ser ajustado ao seu gosto; dentro de uma zona morta a tecla não é acionada.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Zona morta superior</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Zona morta inferior</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (desligado)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (estabilização do Rapid Trigger)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Com o RT Stab ligado, o teclado estabiliza o fundo do curso. Quanto maior o nível, mais estáveis as teclas, com um pouco mais de latência.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Anti-toque acidental</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Nas definições mais sensíveis, uma mesa a tremer ou uma tolerância do switch até 0,1 mm podem acionar uma tecla por engano. Quando ligado, o teclado compensa essa diferença no fundo do curso e fica mais estável.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Desligado)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Tipo de switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Depois de trocar os switches, escolha um tipo abaixo e clique nas teclas que o têm: cada tecla fica definida de imediato e mostra a cor do seu tipo de switch.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Teste de curso</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Teste de teclas</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Teclas recebidas</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Curso</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Premir/soltar separados:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger em todo o curso (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>Ligado: o RT só termina com a tecla totalmente solta.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Desligado: o RT termina acima do ponto de acionamento.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Voltar a premir e repor em separado</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Curso para acionar de novo ao premir (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Curso para repor ao soltar (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Os meus dispositivos</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Mostrar janela</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Ocultar janela</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>A procurar dispositivos</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Sair do controlador ORBE?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Procurar de novo</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Clique num dispositivo para o configurar</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>A iniciar o controlador de “%1”...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>O controlador de “%1” não está instalado. Reinstale o controlador ORBE e tente novamente.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Inserir</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Escolha o tipo de evento de macro a adicionar</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Tecla do teclado</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Botão do rato</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Posição do rato</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Prima uma tecla......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Esquerdo</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Meio</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Direito</translation>
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
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Curso dinâmico (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Premir/Tocar (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Alternar (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Função</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>Uma tecla, até quatro funções em quatro pontos do curso. Escolha a tecla no teclado acima; clique num valor de curso para mover o seu ponto.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>Ao tocar</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>Ao manter</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Escolha uma tecla acima e dê-lhe duas funções, uma ao tocar e outra ao manter premida (também combinações de teclas).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Quanto tempo a tecla tem de ficar premida para contar como «manter»</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Escolha uma tecla acima e dê-lhe uma função; um toque liga-a e o seguinte desliga-a, como repetição ou como tecla premida.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Ligue duas teclas, cada uma escolhida no teclado acima: enquanto ambas estão premidas, ganha a última premida.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Tecla A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Tecla B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Sem função</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tocar</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Manter</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Premir (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>Sem função</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Taxa de polling</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G: luz desligada</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth: luz desligada</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G: suspensão após</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth: suspensão após</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Nível de debounce</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Arco-íris</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fixo</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiração</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Corrente</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Luz lateral</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Tecla única</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Efeito:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Velocidade:</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Brilho:</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Cor:</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Conta-gotas</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Clique numa cor: ela roda para o centro e ilumina as teclas</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Brilho</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Fixo</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiração</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteoro</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Ondulação</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Gotas de chuva</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Convergir</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Corrente</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Estrelas</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Onda sinusoidal</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Florescer</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Dois pássaros</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Caminho sinuoso</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Chuvisco</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Pegadas na neve</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Camadas sem fim</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Luz e sombra</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Imagem própria</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Cima</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Ziguezague</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Espiral</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Para dentro</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Para fora</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Para a direita</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Para a esquerda</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Imagem 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Imagem 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Imagem 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Imagem 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Imagem 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Sentido horário</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Sentido anti-horário</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Efeito de luz</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Reprodução:</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>Ligado: luzes do teclado apagadas</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Velocidade</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Faixa anterior</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Faixa seguinte</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Reproduzir/Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Sem som</translation>
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
        <translation>Leitor multimédia</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Correio</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>O meu computador</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Página inicial</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Brilho do ecrã +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Brilho do ecrã -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Assistente de voz</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Mudar método de entrada</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Bloqueio Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Bloquear ecrã</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Tecla Fn direita</translation>
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
        <translation>Energia</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Suspender</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Despertar</translation>
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
        <translation>Tecla Fn esquerda</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Repor valores de fábrica</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Bloquear tecla Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Modo Windows</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Modo Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Mudar sistema</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Trocar WASD e setas</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Mudar camada Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Poupança de energia</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Trocar APP/CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Luz ligar/desligar</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Ciclo de efeitos de luz</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Efeito de luz +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Efeito de luz -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Ciclo de brilho da luz</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Brilho da luz +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Brilho da luz -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Ciclo de velocidade da luz</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Velocidade da luz -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Velocidade da luz +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Ciclo de direção da luz</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Luz para a esquerda</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Luz para a direita</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Ciclo de cor da luz</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Cor da luz +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Cor da luz -</translation>
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
        <translation>Luz lateral ligar/desligar</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Ciclo de brilho da luz lateral</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Ciclo de velocidade da luz lateral</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Velocidade da luz lateral +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Velocidade da luz lateral -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Ciclo de cor da luz lateral</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Cor da luz lateral +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Cor da luz lateral -</translation>
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
        <translation>Cabo</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Cabo-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Emparelhar 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Emparelhar Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Tecla Insert</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Tecla Print Screen</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Clique esquerdo</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Clique direito</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Clique do meio</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Botão avançar</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Botão retroceder</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Roda para a esquerda</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Roda para a direita</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Roda para cima</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Roda para baixo</translation>
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
        <translation>Macro</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Função</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Rato</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinação</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Tecla selecionada</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Tecla alterada</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Tecla desativada</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Limpar definição</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Desativar tecla</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Ativar tecla</translation>
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
        <translation>Premir (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Soltar (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nova macro</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Arraste o ponteiro ou prima − / +: todas as teclas recebem o valor de imediato.</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090 guia: macros</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
