<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
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
        <translation>Commande,Longueur des données,Byte0
Commande (hex),Byte1
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
        <translation>Terminé</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上任意位置取色</source>
        <translation>Maintenez et faites glisser n’importe où sur l’écran pour prélever sa couleur</translation>
    </message>
    <message>
        <source>此桌面不允许程序读取屏幕，屏幕取色不可用</source>
        <translation>Ce bureau n’autorise pas les programmes à lire l’écran : le prélèvement de couleur à l’écran est indisponible</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConsole</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio – débogage de l’appareil</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>左键</source>
        <translation>Bouton gauche</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Bouton droit</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Bouton central</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Molette à gauche</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Molette à droite</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Molette vers le haut</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Molette vers le bas</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Touches de base</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Touches étendues</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Combinaison de touches</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Fonctions système</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Fonctions souris</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Attribuer :</translation>
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
        <translation>Lecture :</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Tant que maintenue</translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro non enregistrée</translation>
    </message>
</context>
<context>
    <name>DialogKeyPickerBase</name>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Touches de base</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Touches étendues</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Combinaison :</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Valider</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Appareil : Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Firmware du clavier : V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Firmware du récepteur : V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Version actuelle : V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Rechercher une mise à jour du clavier</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Rechercher une mise à jour du récepteur</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutoriels</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>À propos d’Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Switchs magnétiques</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>板载 %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Appairage</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibrage de course</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Éclairage</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Batterie</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Avancées</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Autres réglages</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Couche Fn</translation>
    </message>
    <message>
        <source>选择按键</source>
        <translation>Choisir une touche</translation>
    </message>
    <message>
        <source>点击上方键盘中要修改的按键</source>
        <translation>Cliquez sur le clavier ci-dessus la touche à modifier.</translation>
    </message>
    <message>
        <source>选择功能</source>
        <translation>Choisir la fonction</translation>
    </message>
    <message>
        <source>组合键、宏、系统功能或鼠标功能</source>
        <translation>Une combinaison de touches, une macro, une fonction système ou une fonction souris.</translation>
    </message>
    <message>
        <source>清除或禁用</source>
        <translation>Effacer ou désactiver</translation>
    </message>
    <message>
        <source>右键点击按键可清除设置或禁用按键</source>
        <translation>Un clic droit sur une touche efface son réglage ou la désactive.</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Personnalisé / Couche Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Touches personnalisées</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Touches de la couche Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Cliquez d’abord sur une touche ci-dessus ; dans la fenêtre qui s’ouvre, choisissez pour elle une combinaison de touches, une macro, une fonction système ou une fonction souris.</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Frappe dynamique</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Maintien/Appui</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Bascule</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>系统按键</source>
        <translation>Touche système</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>删除</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Supprimer cette création ?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Ma création %1</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Aperçu,Nom,Gérer</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Mes créations</translation>
    </message>
    <message>
        <source>图%1</source>
        <translation>Couche %1</translation>
    </message>
    <message>
        <source>点击按键或在键盘空白处拖出框选来上色；选择写入层即把图写入键盘，选择读取层即从键盘读回。</source>
        <translation>Cliquez sur une touche, ou tracez un cadre depuis un endroit libre du clavier, pour peindre. Choisir une couche d’écriture envoie le dessin au clavier ; choisir une couche de lecture le récupère.</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Couleur :</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Pipette :</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Couleur aléatoire :</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Écrire dans la couche :</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Lire la couche :</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>延迟</source>
        <translation>Délai</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Démarrer l’enregistrement</translation>
    </message>
    <message>
        <source>宏列表</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nouvelle macro</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Délai fixe (ms) :</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>松开</source>
        <translation>Relâcher</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Appuyer</translation>
    </message>
    <message>
        <source>录制时，在本页按下按键或点击鼠标即被记录</source>
        <translation>Pendant l’enregistrement, les touches et clics sur cette page sont enregistrés</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键或点击鼠标，或用“插入”逐个添加事件</source>
        <translation>Cliquez sur « Démarrer l’enregistrement », puis appuyez sur des touches ou cliquez ici ; ou ajoutez des événements un par un avec « Insérer »</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Course</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zones mortes</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Type de switch</translation>
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
        <translation>Touches sélectionnées</translation>
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
        <translation>Mécanique</translation>
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
        <translation>Extra-plat</translation>
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
        <translation>Personnalisé</translation>
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
        <translation>Course (toutes)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Paramètres système</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Lancer ce programme à l’ouverture de session</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准</source>
        <translation>Calibrage de course</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Enfoncez chaque touche l’une après l’autre, doucement et jusqu’au fond, et maintenez-la au moins une seconde, jusqu’à ce qu’elle devienne orange (cette touche est calibrée). N’en oubliez aucune ; appuyer de nouveau sur une touche ne pose pas de problème. En sans-fil, les touches calibrées ne sont pas affichées. Ne débranchez pas le câble pendant le calibrage.</translation>
    </message>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guide de calibrage de la course</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Démarrer le calibrage</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>完成校准</source>
        <translation>Terminer le calibrage</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>删除宏</source>
        <translation>Supprimer la macro</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>左键</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Central</translation>
    </message>
    <message>
        <source>在此处插入</source>
        <translation>Insérer ici</translation>
    </message>
    <message>
        <source>删除此事件</source>
        <translation>Supprimer cet événement</translation>
    </message>
</context>
<context>
    <name>MagicDeadZonePage</name>
    <message>
        <source>当前选择按键数量:0</source>
        <translation>Touches sélectionnées : 0</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zones mortes</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Zones mortes des touches</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>La course entre le fond et le début du relâchement s’appelle la « zone morte ». Les zones mortes évitent qu’un switch magnétique décroche à cause d’interférences extérieures. Le fond d’un switch magnétique se règle à votre goût ; dans une zone morte, la touche ne se déclenche pas.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Zone morte haute</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Zone morte basse</translation>
    </message>
</context>
<context>
    <name>MagicStabPage</name>
    <message>
        <source>0%(关闭)</source>
        <translation>0 % (désactivé)</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (stabilisation du Rapid Trigger)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Avec RT Stab, le clavier stabilise le bas de la course. Plus le niveau est élevé, plus les touches sont stables, au prix d’un peu plus de latence.</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Anti-frappe accidentelle</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Aux réglages les plus sensibles, un bureau qui tremble ou une tolérance de switch jusqu’à 0,1 mm peuvent déclencher une touche par erreur. Activé, le clavier compense cet écart en bas de la course et reste plus stable.</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Désactivé)</translation>
    </message>
</context>
<context>
    <name>MagicSwitchPage</name>
    <message>
        <source>轴体设置</source>
        <translation>Type de switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Après avoir changé de switchs, choisissez un type ci-dessous, puis cliquez sur les touches qui le portent : chaque touche est réglée aussitôt et prend la couleur de son type de switch.</translation>
    </message>
</context>
<context>
    <name>MagicTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Test de course</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Test des touches</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Touches reçues</translation>
    </message>
</context>
<context>
    <name>MagicTravelPage</name>
    <message>
        <source>行程设置</source>
        <translation>Course</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Appui/relâche séparés :</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger sur toute la course (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。</source>
        <translation>Activé : le Rapid Trigger s’arrête quand la touche est relâchée.</translation>
    </message>
    <message>
        <source>禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Désactivé : il s’arrête au-dessus du point d’activation.</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Réappui et réinitialisation séparés</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Course pour redéclencher à l’appui (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Course pour réinitialiser au relâchement (mm)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>设置</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Mes appareils</translation>
    </message>
    <message>
        <source>显示窗口</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Masquer la fenêtre</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Recherche d’appareils</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Quitter le pilote ORBE ?</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Rechercher à nouveau</translation>
    </message>
    <message>
        <source>点击设备进入设置</source>
        <translation>Cliquez sur un appareil pour le configurer</translation>
    </message>
    <message>
        <source>正在启动“%1”的驱动程序...</source>
        <translation>Démarrage du pilote de « %1 »...</translation>
    </message>
    <message>
        <source>“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。</source>
        <translation>Le pilote de « %1 » n’est pas installé. Réinstallez le pilote ORBE puis réessayez.</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Choisissez le type d’événement de macro à ajouter</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Touche du clavier</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Bouton de souris</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Position de la souris</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Appuyez sur une touche......</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Central</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Droit</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ModuleAdvancedKeys</name>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Frappe dynamique (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Maintien/Appui (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Bascule (TGL)</translation>
    </message>
    <message>
        <source>SnapKey</source>
        <translation>SnapKey</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>当前按键</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>按键功能</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>一个按键在行程的四个位置各触发一个功能。点击上方键盘选择按键，点击行程数值调整触发点。</source>
        <translation>Une touche, jusqu’à quatre fonctions à quatre points de sa course. Choisissez la touche sur le clavier ci-dessus ; cliquez sur une valeur de course pour déplacer son point.</translation>
    </message>
    <message>
        <source>单击时</source>
        <translation>À l’appui</translation>
    </message>
    <message>
        <source>按住时</source>
        <translation>Au maintien</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Choisissez une touche ci-dessus et donnez-lui deux fonctions, une pour l’appui bref et une pour le maintien (combinaisons de touches acceptées).</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Durée de maintien nécessaire pour compter comme un maintien</translation>
    </message>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Choisissez une touche ci-dessus et donnez-lui une fonction ; un appui l’active, le suivant la désactive, en répétition ou en maintien.</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Maintien</translation>
    </message>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Liez deux touches, chacune choisie sur le clavier ci-dessus : quand les deux sont enfoncées, la dernière pressée l’emporte.</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Touche A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Touche B</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Aucune fonction</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Appui</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Maintien</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Appui (mm)</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>未设置功能</source>
        <translation>Aucune fonction</translation>
    </message>
</context>
<context>
    <name>ModuleDeviceOptions</name>
    <message>
        <source>键盘回报率</source>
        <translation>Taux d’interrogation</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G : éclairage éteint</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth : éclairage éteint</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G : veille profonde après</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth : veille profonde après</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Niveau d’anti-rebond</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>炫彩</source>
        <translation>Arc-en-ciel</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Éteint</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiration</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>系统默认</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Éclairage latéral</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Touche unique</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effet :</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Vitesse :</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Luminosité :</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Couleur :</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>点击一种颜色，它会转到中间并成为灯效的颜色</source>
        <translation>Cliquez sur une couleur : elle devient celle des touches</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Luminosité</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>常亮</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiration</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Météore</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Ondulation</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurore</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Gouttes de pluie</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Convergence</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Ciel étoilé</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinusoïde</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fontaine</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Floraison</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Deux oiseaux</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Lacets</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Bruine</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Pas dans la neige</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Couches sans fin</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Ombre et lumière</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Image personnalisée</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Bas</translation>
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
        <translation>Vers l’intérieur</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Vers l’extérieur</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Vers la droite</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Motif 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Motif 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Motif 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Motif 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Motif 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Sens horaire</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Sens antihoraire</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>灯效模式</source>
        <translation>Effet lumineux</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Lecture :</translation>
    </message>
    <message>
        <source>打开时关闭键盘灯光</source>
        <translation>Activé : éclairage du clavier éteint</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Vitesse</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Piste précédente</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Piste suivante</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Muet</translation>
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
        <translation>Lecteur multimédia</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calculatrice</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Courrier</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Poste de travail</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Page d’accueil</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Luminosité écran +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Luminosité écran -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Assistant vocal</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Changer de méthode de saisie</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Verrouillage Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Verrouiller l’écran</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Touche Fn droite</translation>
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
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Veille</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Réveil</translation>
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
        <translation>Touche Fn gauche</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Réglages d’usine</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Verrouiller la touche Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Mode Windows</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mode Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Changer de système</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check Battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Inverser WASD et flèches</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Changer de couche Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Économie d’énergie</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Basculer APP/CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Rétroéclairage on/off</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Rétroéclairage : cycle des effets</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Rétroéclairage : effet +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Rétroéclairage : effet -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Rétroéclairage : cycle de luminosité</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Rétroéclairage : luminosité +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Rétroéclairage : luminosité -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Rétroéclairage : cycle de vitesse</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Rétroéclairage : vitesse -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Rétroéclairage : vitesse +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Rétroéclairage : cycle de direction</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Rétroéclairage vers la gauche</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Rétroéclairage vers la droite</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Rétroéclairage : cycle de couleurs</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Rétroéclairage : couleur +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Rétroéclairage : couleur -</translation>
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
        <translation>Éclairage latéral on/off</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Latéral : cycle de luminosité</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Latéral : cycle de vitesse</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Latéral : vitesse +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Latéral : vitesse -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Latéral : cycle de couleurs</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Latéral : couleur +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Latéral : couleur -</translation>
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
        <translation>Filaire</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Filaire-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Appairage 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Appairage Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Touche Inser</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Touche Impr écran</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Clic gauche</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Clic droit</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Clic central</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Bouton suivant</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Bouton précédent</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Molette à gauche</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Molette à droite</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Molette vers le haut</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Molette vers le bas</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Page suivante</translation>
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
        <translation>Fonction</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Souris</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinaison</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>已选中按键</source>
        <translation>Touche sélectionnée</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Touche modifiée</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Touche désactivée</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Effacer le réglage</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Désactiver la touche</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Réactiver la touche</translation>
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
        <translation>Appui (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Relâchement (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nouvelle macro</translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>拖动指针或点按 − / + 调整，所有按键立即生效。</source>
        <translation>Faites glisser le curseur ou appuyez sur − / + : toutes les touches prennent la valeur aussitôt.</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090, guide : macros</translation>
    </message>
    <message>
        <source>Orbe 2025-10-20</source>
        <translation>Orbe 2025-10-20</translation>
    </message>
</context>
</TS>
