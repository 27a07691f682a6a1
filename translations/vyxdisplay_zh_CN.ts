<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Revision %1</source>
        <translation>修订版 %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1,%2</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Air traffic surveillance display</source>
        <translation>空中交通监视显示</translation>
    </message>
    <message>
        <source>Copyright © Korvane. All rights reserved.</source>
        <translation>版权所有 © Korvane。保留所有权利。</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>Copy the versions, for a fault report</source>
        <translation>复制版本信息，用于故障报告</translation>
    </message>
    <message>
        <source>&amp;Third-Party Notices</source>
        <translation>第三方声明(&amp;T)</translation>
    </message>
    <message>
        <source>Third-Party Notices</source>
        <translation>第三方声明</translation>
    </message>
</context>
<context>
    <name>Absence</name>
    <message>
        <source>sensor&apos;s number %1</source>
        <translation>传感器编号 %1</translation>
    </message>
    <message>
        <source>Its reports</source>
        <translation>其报告</translation>
    </message>
    <message>
        <source>Its reports (CAT%1)</source>
        <translation>其报告（CAT%1）</translation>
    </message>
    <message>
        <source>It has the track %1, but none of its reports says where it is.</source>
        <translation>它有航迹 %1，但没有任何报告给出其位置。</translation>
    </message>
    <message>
        <source>It is outside the view, %1 NM from its centre in direction %2°.</source>
        <translation>它在视图之外，距视图中心 %1 NM，方向 %2°。</translation>
    </message>
    <message>
        <source>Its symbol is under the label of %1.</source>
        <translation>它的符号被 %1 的标牌遮住。</translation>
    </message>
    <message>
        <source>It is in view; the view is too wide for labels, so that only its symbol is shown.</source>
        <translation>它在视图内；视图范围过大不显示标牌，因此只显示符号。</translation>
    </message>
    <message>
        <source>It is in view; labels are switched off, so that only its symbol is shown.</source>
        <translation>它在视图内；标牌已关闭，因此只显示符号。</translation>
    </message>
    <message>
        <source>It is in view; its label is under others, so that only its symbol is shown.</source>
        <translation>它在视图内；标牌被其他标牌遮住，因此只显示符号。</translation>
    </message>
    <message>
        <source>It is shown.</source>
        <translation>它正在显示。</translation>
    </message>
    <message>
        <source>It coasts: no report has told its position for %1 s.</source>
        <translation>它正在外推：已有 %1 s 没有报告给出其位置。</translation>
    </message>
    <message>
        <source>Its track %1 ended at %2: its source ended it.</source>
        <translation>其航迹 %1 于 %2 结束：由数据源终止。</translation>
    </message>
    <message>
        <source>Its track %1 ended at %2: no report had told its position since %3.</source>
        <translation>其航迹 %1 于 %2 结束：自 %3 起没有报告给出其位置。</translation>
    </message>
    <message>
        <source>%1 carry neither track number nor address, so they are plots and no track.</source>
        <translation>%1既无航迹号也无地址，因此是点迹而不是航迹。</translation>
    </message>
    <message>
        <source>The plot layer shows them.</source>
        <translation>点迹图层会显示它们。</translation>
    </message>
    <message>
        <source>The plot layer is switched off.</source>
        <translation>点迹图层已关闭。</translation>
    </message>
    <message>
        <source>%1 are dropped: they are of another source than the sensor&apos;s.</source>
        <translation>%1被丢弃：其来源与传感器的来源不同。</translation>
    </message>
    <message>
        <source>%1 are dropped: they are of SAC/SIC %2/%3, the sensor is set to %4/%5.</source>
        <translation>%1被丢弃：其 SAC/SIC 为 %2/%3，而传感器设置为 %4/%5。</translation>
    </message>
    <message>
        <source>%1 are dropped: sensors of the configured kind do not send them.</source>
        <translation>%1被丢弃：所设类型的传感器不发送此类报告。</translation>
    </message>
    <message>
        <source>%1 are dropped: this program shows nothing of their category.</source>
        <translation>%1被丢弃：本程序不显示该类别的内容。</translation>
    </message>
    <message>
        <source>%1 are dropped: they carry neither track number nor address nor a position.</source>
        <translation>%1被丢弃：既无航迹号、地址，也无位置。</translation>
    </message>
    <message>
        <source>%1 are dropped: the source marks it as a test target.</source>
        <translation>%1被丢弃：数据源将其标记为测试目标。</translation>
    </message>
    <message>
        <source>%1 have told no position yet.</source>
        <translation>%1尚未给出位置。</translation>
    </message>
    <message>
        <source>%1 are dropped: their position is out of range. Is the sensor&apos;s location right?</source>
        <translation>%1被丢弃：位置超出范围。传感器位置是否正确？</translation>
    </message>
    <message>
        <source>%1 make no track: all system track numbers are in use.</source>
        <translation>%1不能形成航迹：所有系统航迹号均已占用。</translation>
    </message>
    <message>
        <source>%1 are dropped: %2.</source>
        <translation>%1被丢弃：%2。</translation>
    </message>
    <message>
        <source>It has not been received, and no input is open now.</source>
        <translation>尚未收到，且当前没有打开任何输入。</translation>
    </message>
    <message>
        <source>It has not been received, and the input is paused.</source>
        <translation>尚未收到，且输入已暂停。</translation>
    </message>
    <message>
        <source>It has not been received: no report has named it.</source>
        <translation>尚未收到：没有任何报告提到它。</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Show the Place</source>
        <translation>显示位置</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Show Labels</source>
        <translation>显示标牌</translation>
    </message>
    <message>
        <source>Show Plots</source>
        <translation>显示点迹</translation>
    </message>
    <message>
        <source>Start Input</source>
        <translation>启动输入</translation>
    </message>
    <message>
        <source>Resume Input</source>
        <translation>恢复输入</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
</context>
<context>
    <name>AbsenceWindow</name>
    <message>
        <source>Why Is It Not Shown?</source>
        <translation>为什么没有显示？</translation>
    </message>
    <message>
        <source>Callsign, squawk, address or track number</source>
        <translation>呼号、应答机编码、地址或航迹号</translation>
    </message>
    <message>
        <source>Type whom you miss, such as VYX123, 7000, 4B1A2C or #42.</source>
        <translation>输入要查找的目标，例如 VYX123、7000、4B1A2C 或 #42。</translation>
    </message>
    <message>
        <source>   last received %1 UTC, %2 s ago</source>
        <translation>   最后收到 %1 UTC，%2 s 前</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Start Input</source>
        <translation>启动输入</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop Input</source>
        <translation>停止输入</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Replay Recording File  ...</source>
        <translation>回放记录文件  ...</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>Replay from recording file.</source>
        <translation>从记录文件回放。</translation>
    </message>
    <message>
        <source>Playback Window</source>
        <translation>回放窗口</translation>
    </message>
    <message>
        <source>Show the playback control window</source>
        <translation>显示回放控制窗口</translation>
    </message>
    <message>
        <source>Replay Speed</source>
        <translation>回放速度</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Record...</source>
        <translation>记录...</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Record what the input receives to a file</source>
        <translation>将输入收到的数据记录到文件</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>ZoomOut</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>顺时针</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>逆时针</translation>
    </message>
    <message>
        <source>Rotate North Up</source>
        <translation>旋转至正北向上</translation>
    </message>
    <message>
        <source>North Up</source>
        <translation>正北向上</translation>
    </message>
    <message>
        <source>Rotate...</source>
        <translation>旋转...</translation>
    </message>
    <message>
        <source>Rotate view</source>
        <translation>旋转视图</translation>
    </message>
    <message>
        <source>Move Left</source>
        <translation>向左移动</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>向上移动</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>向下移动</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Move Right</source>
        <translation>向右移动</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Go To...</source>
        <translation>转到...</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>转到</translation>
    </message>
    <message>
        <source>Go to specified location...</source>
        <translation>转到指定位置...</translation>
    </message>
    <message>
        <source>Save Layout...</source>
        <translation>保存布局...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save current map layout.</source>
        <translation>保存当前地图布局。</translation>
    </message>
    <message>
        <source>Load Layout</source>
        <translation>加载布局</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Colours, fonts and map style of scope and windows</source>
        <translation>显示区和窗口的颜色、字体与地图样式</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Resize Main Window</source>
        <translation>调整主窗口大小</translation>
    </message>
    <message>
        <source>Statistics...</source>
        <translation>统计...</translation>
    </message>
    <message>
        <source>Show Statistics</source>
        <translation>显示统计</translation>
    </message>
    <message>
        <source>Raw View...</source>
        <translation>原始数据...</translation>
    </message>
    <message>
        <source>Show the records as they come, with their octets</source>
        <translation>按到达顺序显示记录及其字节</translation>
    </message>
    <message>
        <source>Diagnose Input...</source>
        <translation>诊断输入...</translation>
    </message>
    <message>
        <source>Say in words what arrives and what is wrong with it</source>
        <translation>用文字说明收到的内容及其问题</translation>
    </message>
    <message>
        <source>Sensor Manager...</source>
        <translation>传感器管理器...</translation>
    </message>
    <message>
        <source>Sensor Check...</source>
        <translation>传感器检查...</translation>
    </message>
    <message>
        <source>Detection, rotation and errors of radars, measured</source>
        <translation>测量雷达的探测、旋转和误差</translation>
    </message>
    <message>
        <source>Toggle Track Label</source>
        <translation>开/关航迹标牌</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标牌</translation>
    </message>
    <message>
        <source>Track Label Format...</source>
        <translation>航迹标牌格式...</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Arrange Labels Automatically</source>
        <translation>自动排列标牌</translation>
    </message>
    <message>
        <source>Labels keep out of each other&apos;s way</source>
        <translation>标牌互相避让</translation>
    </message>
    <message>
        <source>Reset Label</source>
        <translation>复位标牌</translation>
    </message>
    <message>
        <source>Give up the place to which the selected track&apos;s label was dragged</source>
        <translation>放弃所选航迹标牌被拖到的位置</translation>
    </message>
    <message>
        <source>Reset All Labels</source>
        <translation>复位所有标牌</translation>
    </message>
    <message>
        <source>Give up the places to which labels were dragged</source>
        <translation>放弃标牌被拖到的位置</translation>
    </message>
    <message>
        <source>Follow Selected Track</source>
        <translation>跟随所选航迹</translation>
    </message>
    <message>
        <source>Selected track will always be put at the center of map</source>
        <translation>所选航迹始终位于地图中心</translation>
    </message>
    <message>
        <source>Acknowledge Alert</source>
        <translation>确认告警</translation>
    </message>
    <message>
        <source>Alerts and emergencies of the selected track blink no longer</source>
        <translation>所选航迹的告警和紧急情况不再闪烁</translation>
    </message>
    <message>
        <source>Acknowledge All Alerts</source>
        <translation>确认所有告警</translation>
    </message>
    <message>
        <source>No alert and no emergency blinks any longer</source>
        <translation>所有告警和紧急情况不再闪烁</translation>
    </message>
    <message>
        <source>Toggle Track List</source>
        <translation>开/关航迹列表</translation>
    </message>
    <message>
        <source>Toggle Alert List</source>
        <translation>开/关告警列表</translation>
    </message>
    <message>
        <source>Explain Track</source>
        <translation>解释航迹</translation>
    </message>
    <message>
        <source>Why Is It Not Shown?...</source>
        <translation>为什么没有显示？...</translation>
    </message>
    <message>
        <source>Where a target is that cannot be seen</source>
        <translation>查找看不到的目标</translation>
    </message>
    <message>
        <source>Static Maps...</source>
        <translation>静态地图...</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Manage static maps</source>
        <translation>管理静态地图</translation>
    </message>
    <message>
        <source>Toggle Static Maps</source>
        <translation>开/关静态地图</translation>
    </message>
    <message>
        <source>Toggle all static map layers</source>
        <translation>开/关所有静态地图图层</translation>
    </message>
    <message>
        <source>Static Map Editor...</source>
        <translation>静态地图编辑器...</translation>
    </message>
    <message>
        <source>Open Static Map Editor</source>
        <translation>打开静态地图编辑器</translation>
    </message>
    <message>
        <source>Toggle Tile Map</source>
        <translation>开/关瓦片地图</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>瓦片</translation>
    </message>
    <message>
        <source>Map tiles of an online service or a file, see Settings</source>
        <translation>来自在线服务或文件的地图瓦片，见“设置”</translation>
    </message>
    <message>
        <source>Bing Maps Downloader...</source>
        <translation>必应地图下载器...</translation>
    </message>
    <message>
        <source>Download map tiles of any service ahead of need</source>
        <translation>提前下载任一服务的地图瓦片</translation>
    </message>
    <message>
        <source>Toggle Sensor Map</source>
        <translation>开/关传感器图</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>Toggle Weather Map</source>
        <translation>开/关气象图</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>气象</translation>
    </message>
    <message>
        <source>Toggle Video Map</source>
        <translation>开/关视频图</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Toggle Plots</source>
        <translation>开/关点迹</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>点迹</translation>
    </message>
    <message>
        <source>Toggle plots: every target report, also those without a track</source>
        <translation>开/关点迹：每个目标报告，包括没有航迹的</translation>
    </message>
    <message>
        <source>Weather Intensity</source>
        <translation>气象强度</translation>
    </message>
    <message>
        <source>Toggle Range Rings</source>
        <translation>开/关距离环</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>距离环</translation>
    </message>
    <message>
        <source>Rang Rings ...</source>
        <translation>距离环 ...</translation>
    </message>
    <message>
        <source>Set Range Rings Center</source>
        <translation>设置距离环中心</translation>
    </message>
    <message>
        <source>Toggle Ring Distances</source>
        <translation>开/关距离环数值</translation>
    </message>
    <message>
        <source>Show the distance of each range ring</source>
        <translation>显示每个距离环的距离</translation>
    </message>
    <message>
        <source>Toggle Compass Rose</source>
        <translation>开/关罗经圈</translation>
    </message>
    <message>
        <source>Show true bearings from the centre of the range rings</source>
        <translation>显示从距离环中心起的真方位</translation>
    </message>
    <message>
        <source>Toggle Scale Bar</source>
        <translation>开/关比例尺</translation>
    </message>
    <message>
        <source>Toggle Key</source>
        <translation>开/关图例</translation>
    </message>
    <message>
        <source>Show what symbols and weather colours mean</source>
        <translation>显示符号和气象颜色的含义</translation>
    </message>
    <message>
        <source>Cheat Sheet...</source>
        <translation>速查表...</translation>
    </message>
    <message>
        <source>Show Cheat Sheet</source>
        <translation>显示速查表</translation>
    </message>
    <message>
        <source>What&apos;s New?...</source>
        <translation>新增功能...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>关于...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>航迹(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>地图(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>航迹</translation>
    </message>
    <message>
        <source>New Window With Profile...</source>
        <translation>用配置文件打开新窗口...</translation>
    </message>
    <message>
        <source>Start the program once more, with settings of its own</source>
        <translation>再启动一次程序，使用独立的设置</translation>
    </message>
    <message>
        <source>Lock Settings...</source>
        <translation>锁定设置...</translation>
    </message>
    <message>
        <source>Who does not have the password changes no settings</source>
        <translation>没有密码者不能更改设置</translation>
    </message>
    <message>
        <source>Show Bars and Panes</source>
        <translation>显示工具栏和窗格</translation>
    </message>
    <message>
        <source>In full screen: all bars and panes over the scope, and away again</source>
        <translation>全屏时：在显示区上显示或隐藏所有工具栏和窗格</translation>
    </message>
    <message>
        <source>New Plan View</source>
        <translation>新建平面视图</translation>
    </message>
    <message>
        <source>The same picture in a window of its own, with its own centre, scale and layers</source>
        <translation>在单独的窗口中显示同一画面，有独立的中心、比例和图层</translation>
    </message>
    <message>
        <source>Getting Started...</source>
        <translation>入门...</translation>
    </message>
    <message>
        <source>To a picture step by step: demonstration, recording or live input</source>
        <translation>逐步得到画面：演示、记录或实时输入</translation>
    </message>
    <message>
        <source>Contents...</source>
        <translation>内容...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>Where the values of the selected track, or what the pointer is on, come from</source>
        <translation>所选航迹或指针所指内容的数值来源</translation>
    </message>
</context>
<context>
    <name>AdsbTracker</name>
    <message>
        <source>ADS-B Tracker: %1 positions more than 1,000 km from the sensor were not taken, is its location right?</source>
        <translation>ADS-B 跟踪器：%1 个位置距传感器超过 1,000 km，未被采用，传感器位置是否正确？</translation>
    </message>
</context>
<context>
    <name>AlertIndicator</name>
    <message numerus="yes">
        <source>%n to acknowledge</source>
        <translation>
            <numerusform>%n 个待确认</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AlertListModel</name>
    <message>
        <source>Initial</source>
        <translation>初始</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Terminated</source>
        <translation>已终止</translation>
    </message>
    <message>
        <source>End, no data</source>
        <translation>结束，无数据</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>告警</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>航迹</translation>
    </message>
    <message>
        <source>Other Track</source>
        <translation>另一航迹</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Begin UTC</source>
        <translation>开始 UTC</translation>
    </message>
    <message>
        <source>End UTC</source>
        <translation>结束 UTC</translation>
    </message>
    <message>
        <source>Safety-net alert, emergency or special pulse</source>
        <translation>安全网告警、紧急情况或特殊脉冲</translation>
    </message>
    <message>
        <source>Lasts</source>
        <translation>持续</translation>
    </message>
    <message>
        <source>Since its begin, or from there to its end; minutes and seconds</source>
        <translation>自开始起，或从开始到结束；分和秒</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Flight level of the track</source>
        <translation>航迹的飞行高度层</translation>
    </message>
    <message>
        <source>Other Level</source>
        <translation>另一高度</translation>
    </message>
    <message>
        <source>Flight level of the other track</source>
        <translation>另一航迹的飞行高度层</translation>
    </message>
    <message>
        <source>Sensor No.</source>
        <translation>传感器号</translation>
    </message>
    <message>
        <source>The sensor&apos;s own number of the track</source>
        <translation>传感器自身的航迹号</translation>
    </message>
    <message>
        <source>Other Sensor No.</source>
        <translation>另一传感器号</translation>
    </message>
    <message>
        <source>The sensor&apos;s own number of the other track</source>
        <translation>传感器自身对另一航迹的编号</translation>
    </message>
</context>
<context>
    <name>AlertProcessor</name>
    <message>
        <source>Unsupported CAT004 message type: %1 (%2)</source>
        <translation>不支持的 CAT004 报文类型：%1(%2)</translation>
    </message>
    <message>
        <source>Unsupported CAT004 status: %1 (%2)</source>
        <translation>不支持的 CAT004 状态：%1(%2)</translation>
    </message>
</context>
<context>
    <name>Assessment</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>from north markers</source>
        <translation>由正北标记</translation>
    </message>
    <message>
        <source>from sector crossings</source>
        <translation>由扇区穿越</translation>
    </message>
    <message>
        <source>as the radar says; not measured</source>
        <translation>按雷达所报；未测量</translation>
    </message>
    <message>
        <source>from reports of the same targets</source>
        <translation>由同一目标的报告</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>天线</translation>
    </message>
    <message>
        <source>Rotation period</source>
        <translation>旋转周期</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>too few reports</source>
        <translation>报告太少</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Turns measured</source>
        <translation>测得圈数</translation>
    </message>
    <message>
        <source>Jitter</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>one standard deviation</source>
        <translation>一倍标准差</translation>
    </message>
    <message>
        <source>Shortest and longest turn</source>
        <translation>最短与最长一圈</translation>
    </message>
    <message>
        <source>%1 s and %2 s</source>
        <translation>%1 s 和 %2 s</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>%1, least %2, 95 % below %3</source>
        <translation>%1，最小 %2，95 % 低于 %3</translation>
    </message>
    <message>
        <source>Delay of service messages</source>
        <translation>服务报文延迟</translation>
    </message>
    <message>
        <source>clock offset and way</source>
        <translation>时钟偏差与传输</translation>
    </message>
    <message>
        <source>Delay of plots</source>
        <translation>点迹延迟</translation>
    </message>
    <message>
        <source>median</source>
        <translation>中位数</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>the data have no times of arrival</source>
        <translation>数据没有到达时间</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 to %2 %, %3 looks</source>
        <translation>%1 至 %2 %，%3 次扫描</translation>
    </message>
    <message>
        <source>Detection</source>
        <translation>探测</translation>
    </message>
    <message>
        <source>Probability of detection</source>
        <translation>探测概率</translation>
    </message>
    <message>
        <source>too few reports of the same targets</source>
        <translation>同一目标的报告太少</translation>
    </message>
    <message>
        <source>Secondary radar</source>
        <translation>二次雷达</translation>
    </message>
    <message>
        <source>Primary radar</source>
        <translation>一次雷达</translation>
    </message>
    <message>
        <source>%1, within %2 NM</source>
        <translation>%1，%2 NM 以内</translation>
    </message>
    <message>
        <source>False plots</source>
        <translation>虚假点迹</translation>
    </message>
    <message>
        <source>%1 a turn</source>
        <translation>每圈 %1</translation>
    </message>
    <message>
        <source>Lone plots</source>
        <translation>孤立点迹</translation>
    </message>
    <message>
        <source>belong to no track</source>
        <translation>不属于任何航迹</translation>
    </message>
    <message>
        <source>Second plots</source>
        <translation>重复点迹</translation>
    </message>
    <message>
        <source>of one target in one turn</source>
        <translation>同一目标同一圈内</translation>
    </message>
    <message>
        <source>Compared with %1</source>
        <translation>与 %1 比较</translation>
    </message>
    <message>
        <source>, an even sample of %1</source>
        <translation>，均匀抽样 %1</translation>
    </message>
    <message>
        <source>Matched plots</source>
        <translation>匹配的点迹</translation>
    </message>
    <message>
        <source>%1 used, of %2 aircraft%3</source>
        <translation>使用 %1，来自 %2 架航空器%3</translation>
    </message>
    <message>
        <source>too few, or in too few directions</source>
        <translation>太少或方向太少</translation>
    </message>
    <message>
        <source>Range bias</source>
        <translation>距离系统误差</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Range gain</source>
        <translation>距离增益误差</translation>
    </message>
    <message>
        <source>m/NM</source>
        <translation>m/NM</translation>
    </message>
    <message>
        <source>Azimuth bias</source>
        <translation>方位系统误差</translation>
    </message>
    <message>
        <source>Time offset</source>
        <translation>时间偏差</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>the radar&apos;s stamps are ahead</source>
        <translation>雷达时标超前</translation>
    </message>
    <message>
        <source>the radar&apos;s stamps are behind</source>
        <translation>雷达时标滞后</translation>
    </message>
    <message>
        <source>Random error of range</source>
        <translation>距离随机误差</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>one standard deviation, the reference&apos;s included</source>
        <translation>一倍标准差，含参考误差</translation>
    </message>
    <message>
        <source>Random error of azimuth</source>
        <translation>方位随机误差</translation>
    </message>
    <message>
        <source>Detection by range</source>
        <translation>按距离的探测</translation>
    </message>
    <message>
        <source>ADS-B (CAT021)</source>
        <translation>ADS-B(CAT021)</translation>
    </message>
    <message>
        <source>system tracks (CAT062)</source>
        <translation>系统航迹（CAT062）</translation>
    </message>
    <message>
        <source>Range, NM</source>
        <translation>距离，NM</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>扫描次数</translation>
    </message>
    <message>
        <source>Detected</source>
        <translation>探测到</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>一次</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>二次</translation>
    </message>
    <message>
        <source>%1 and more</source>
        <translation>%1 及以上</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 条记录</translation>
    </message>
    <message>
        <source>%1 reports of reference targets</source>
        <translation>%1 个参考目标报告</translation>
    </message>
    <message>
        <source>Rotation: the times between north markers, or crossings of one sector. Jitter is their standard deviation, less what the resolution of the time stamps (1/128 s) alone would give.</source>
        <translation>旋转：正北标记之间或同一扇区穿越之间的时间。抖动为其标准差，减去仅由时标分辨率（1/128 s）产生的部分。</translation>
    </message>
    <message>
        <source>Delay: time of arrival less time of day. It holds the way, the radar&apos;s processing and the difference of the two clocks.</source>
        <translation>延迟：到达时间减去日时间。包含传输、雷达处理以及两个时钟之差。</translation>
    </message>
    <message>
        <source>Probability of detection: blips over scans. Of the turns between two detections of a target those count in which it was detected; five turns without end a track. Intervals are Wilson&apos;s, 95 %.</source>
        <translation>探测概率：探测次数与扫描次数之比。在目标两次探测之间的各圈中，统计探测到它的圈数；连续五圈未探测到即结束航迹。区间为 Wilson 区间，95 %。</translation>
    </message>
    <message>
        <source>False plots: lone plots, to which no other plot within the neighbouring turns belongs, and second plots of one address in one turn.</source>
        <translation>虚假点迹：在相邻各圈内没有其他点迹与之对应的孤立点迹，以及同一圈内同一地址的重复点迹。</translation>
    </message>
    <message>
        <source>Bias, gain and time offset: weighted least squares over all matched plots, dr = b + g r - r&apos; t and da = c - a&apos; t, with r and a the slant range and azimuth of the reference on the ellipsoid of WGS-84 at the plot&apos;s time, r&apos; and a&apos; their rates. Outliers are kept out by Huber&apos;s weights and then beyond four deviations; confidence is the sandwich by aircraft. Refraction, some tens of metres at long range and low elevation, is part of the gain. Plots nearer than 5 km or above 30° are left out.</source>
        <translation>系统误差、增益和时间偏差：对所有匹配点迹作加权最小二乘，dr = b + g r - r&apos; t，da = c - a&apos; t，其中 r 和 a 为参考目标在点迹时刻于 WGS-84 椭球上的斜距和方位，r&apos; 和 a&apos; 为其变化率。离群值先用 Huber 权重、再以四倍偏差剔除；置信度采用按航空器分组的夹心估计。折射（远距离低仰角时约数十米）计入增益。近于 5 km 或高于 30° 的点迹不参与计算。</translation>
    </message>
    <message>
        <source>Sensor check of %1</source>
        <translation>%1 的传感器检查</translation>
    </message>
    <message>
        <source>It holds no reports of radars (CAT001, CAT002, CAT034, CAT048).</source>
        <translation>其中没有雷达报告（CAT001、CAT002、CAT034、CAT048）。</translation>
    </message>
    <message>
        <source>N</source>
        <translation>北</translation>
    </message>
    <message>
        <source>rings in NM</source>
        <translation>距离环单位 NM</translation>
    </message>
    <message>
        <source>Detected, %</source>
        <translation>探测到，%</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>任一</translation>
    </message>
    <message>
        <source>Azimuth, degrees</source>
        <translation>方位，度</translation>
    </message>
    <message>
        <source>Measured minus reference, m</source>
        <translation>测量减参考，m</translation>
    </message>
    <message>
        <source>Measured minus reference, degrees</source>
        <translation>测量减参考，度</translation>
    </message>
    <message>
        <source>Time, s</source>
        <translation>时间，s</translation>
    </message>
    <message>
        <source>Turn, s</source>
        <translation>每圈，s</translation>
    </message>
    <message>
        <source>Probability of detection by range and azimuth</source>
        <translation>按距离和方位的探测概率</translation>
    </message>
    <message>
        <source>Probability of detection by range</source>
        <translation>按距离的探测概率</translation>
    </message>
    <message>
        <source>Range errors</source>
        <translation>距离误差</translation>
    </message>
    <message>
        <source>Azimuth errors</source>
        <translation>方位误差</translation>
    </message>
    <message>
        <source>Turns of the antenna</source>
        <translation>天线旋转</translation>
    </message>
    <message>
        <source>%1: a report is written as .html or .pdf.</source>
        <translation>%1：报告以 .html 或 .pdf 保存。</translation>
    </message>
    <message>
        <source>Methods</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>height not known, taken as 0 m</source>
        <translation>高度未知，按 0 m 计</translation>
    </message>
    <message>
        <source>%1 m high</source>
        <translation>高度 %1 m</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>measured less reference, 95 % confidence</source>
        <translation>测量值减参考值，置信度 95 %</translation>
    </message>
</context>
<context>
    <name>CaptureReader</name>
    <message>
        <source>This reader reads network captures only.</source>
        <translation>此读取器只读取网络抓包文件。</translation>
    </message>
    <message>
        <source>Link type %1 is not supported.</source>
        <translation>不支持链路类型 %1。</translation>
    </message>
</context>
<context>
    <name>ChangelogWindow</name>
    <message>
        <source>What&apos;s New?</source>
        <translation>新增功能</translation>
    </message>
</context>
<context>
    <name>ChartView</name>
    <message>
        <source>There are no data for this yet.</source>
        <translation>尚无相应数据。</translation>
    </message>
</context>
<context>
    <name>CheatSheet</name>
    <message>
        <source> or </source>
        <translation> 或 </translation>
    </message>
    <message>
        <source>Menu %1</source>
        <translation>菜单 %1</translation>
    </message>
    <message>
        <source>Mouse on the plan view</source>
        <translation>平面视图上的鼠标操作</translation>
    </message>
    <message>
        <source>Keys on the plan view</source>
        <translation>平面视图上的按键</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Double-click</source>
        <translation>双击</translation>
    </message>
    <message>
        <source>Bring the track into view</source>
        <translation>将航迹置于视图中</translation>
    </message>
    <message>
        <source>Enter or space on a track</source>
        <translation>在航迹上按 Enter 或空格</translation>
    </message>
    <message>
        <source>Enter or space on an alert</source>
        <translation>在告警上按 Enter 或空格</translation>
    </message>
    <message>
        <source>Acknowledge the alert</source>
        <translation>确认告警</translation>
    </message>
    <message>
        <source>Right click</source>
        <translation>右键单击</translation>
    </message>
    <message>
        <source>What can be done with the track</source>
        <translation>可对航迹执行的操作</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>In every other window: the page of the manual about it</source>
        <translation>在其他任何窗口：手册中关于该窗口的页面</translation>
    </message>
</context>
<context>
    <name>CheatSheetWindow</name>
    <message>
        <source>Cheat Sheet</source>
        <translation>速查表</translation>
    </message>
    <message>
        <source>Search all commands, also those without a key</source>
        <translation>搜索所有命令，包括没有快捷键的</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Keys and mouse gestures</source>
        <translation>按键和鼠标操作</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>Save as &amp;PDF...</source>
        <translation>另存为 PDF(&amp;P)...</translation>
    </message>
    <message>
        <source>No command and no gesture has these words.</source>
        <translation>没有命令或操作包含这些文字。</translation>
    </message>
    <message>
        <source>Save Cheat Sheet</source>
        <translation>保存速查表</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>ColumnChoice</name>
    <message>
        <source>Default Columns</source>
        <translation>默认列</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--theme: &apos;%1&apos; is not a theme (%2)</source>
        <translation>--theme: “%1”不是主题（%2）</translation>
    </message>
</context>
<context>
    <name>Config</name>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>Async Serial</source>
        <translation>异步串口</translation>
    </message>
    <message>
        <source>Recording File</source>
        <translation>记录文件</translation>
    </message>
    <message>
        <source>Unknown Input Method</source>
        <translation>未知输入方式</translation>
    </message>
    <message>
        <source>ASTERIX Processor</source>
        <translation>ASTERIX 处理器</translation>
    </message>
    <message>
        <source>1090ES ADS-B Processor</source>
        <translation>1090ES ADS-B 处理器</translation>
    </message>
    <message>
        <source>Alenia SIR-M Radar Processor</source>
        <translation>Alenia SIR-M 雷达处理器</translation>
    </message>
    <message>
        <source>Unknown Processor</source>
        <translation>未知处理器</translation>
    </message>
    <message>
        <source>Raw ASTERIX Datablock(s)</source>
        <translation>原始 ASTERIX 数据块</translation>
    </message>
    <message>
        <source>HDLC Frame</source>
        <translation>HDLC 帧</translation>
    </message>
    <message>
        <source>ManagAir Message</source>
        <translation>ManagAir 报文</translation>
    </message>
    <message>
        <source>Unknown Format</source>
        <translation>未知格式</translation>
    </message>
    <message>
        <source>Raw Radar Data</source>
        <translation>原始雷达数据</translation>
    </message>
</context>
<context>
    <name>ConfigDefaults</name>
    <message>
        <source>&amp;Defaults</source>
        <translation>默认值(&amp;Z)</translation>
    </message>
    <message>
        <source>Puts back what the program, or the theme chosen, has by itself.</source>
        <translation>恢复程序或所选主题自带的值。</translation>
    </message>
    <message>
        <source>Default of &quot;%1&quot;</source>
        <translation>“%1”的默认值</translation>
    </message>
    <message>
        <source>Defaults of the Page &quot;%1&quot;</source>
        <translation>“%1”页的默认值</translation>
    </message>
</context>
<context>
    <name>ConfigPage</name>
    <message>
        <source>Locked while the input runs. Stop the input to change it.</source>
        <translation>输入运行时锁定。要更改请先停止输入。</translation>
    </message>
    <message>
        <source>%1
%2 to %3, default %4.</source>
        <translation>%1
%2 至 %3，默认 %4。</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>已更改。%1</translation>
    </message>
</context>
<context>
    <name>ConfigSearch</name>
    <message>
        <source>Only what is &amp;not default</source>
        <translation>只显示非默认值(&amp;Q)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search in all settings</source>
        <translation>搜索所有设置</translation>
    </message>
    <message>
        <source>Words of names and explanations on all pages; Return goes to the next hit.</source>
        <translation>所有页面名称和说明中的文字；按回车转到下一个结果。</translation>
    </message>
    <message>
        <source>Shows what has been set in another way than the program or the theme has it.</source>
        <translation>显示与程序或主题自带值不同的设置。</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>未找到。</translation>
    </message>
    <message numerus="yes">
        <source>%n hit(s)</source>
        <translation>
            <numerusform>%n 个结果</numerusform>
        </translation>
    </message>
    <message>
        <source>Hit %1 of %2</source>
        <translation>第 %1 个结果，共 %2 个</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there with another choice of &quot;%2&quot;.</source>
        <translation>“%1”在“%2”选其他值时出现。</translation>
    </message>
</context>
<context>
    <name>ConfigWindow</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>%1. The settings hold until the program ends.</source>
        <translation>%1。设置在程序结束前有效。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed</source>
        <translation>
            <numerusform>已更改 %n 项设置</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1，已更改</translation>
    </message>
</context>
<context>
    <name>ConflictLinePainter</name>
    <message>
        <source>%1 NM</source>
        <translation>%1 NM</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <translation>%1 ft</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Nobody listens on %1.</source>
        <translation>%1 上没有监听者。</translation>
    </message>
    <message>
        <source>The terminal on %1 does not answer: %2</source>
        <translation>%1 上的终端没有响应：%2</translation>
    </message>
    <message>
        <source>There is no right to speak to %1: only its owner may.</source>
        <translation>无权访问 %1：只有其所有者可以。</translation>
    </message>
</context>
<context>
    <name>ControlCommands</name>
    <message>
        <source>The request has no &quot;command&quot;: one of %1.</source>
        <translation>请求中没有“command”：应为 %1 之一。</translation>
    </message>
    <message>
        <source>The command %1 takes no &quot;%2&quot;.</source>
        <translation>命令 %1 不接受“%2”。</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;: %2.</source>
        <translation>没有命令“%1”：%2。</translation>
    </message>
    <message>
        <source>&quot;path&quot; has to be the absolute path of a file.</source>
        <translation>“path”必须是文件的绝对路径。</translation>
    </message>
    <message>
        <source>A request is a JSON object in one line.</source>
        <translation>请求是单行的 JSON 对象。</translation>
    </message>
    <message>
        <source>A request is a JSON object in one line: %1 at octet %2.</source>
        <translation>请求是单行的 JSON 对象：%1，在字节 %2。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has to be a number.</source>
        <translation>“%1”必须是数字。</translation>
    </message>
    <message>
        <source>There is no window.</source>
        <translation>没有窗口。</translation>
    </message>
</context>
<context>
    <name>ControlConnection</name>
    <message>
        <source>A request has at most %1 octets.</source>
        <translation>请求最多 %1 字节。</translation>
    </message>
</context>
<context>
    <name>ControlServer</name>
    <message>
        <source>The control socket %1 cannot be made: %2.</source>
        <translation>无法创建控制套接字 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is there already, and is no control socket.</source>
        <translation>%1 已存在，且不是控制套接字。</translation>
    </message>
    <message>
        <source>Another program listens on the control socket %1.</source>
        <translation>另一个程序正在监听控制套接字 %1。</translation>
    </message>
    <message>
        <source>The folder of the control socket %1 is not there.</source>
        <translation>控制套接字 %1 所在的文件夹不存在。</translation>
    </message>
</context>
<context>
    <name>CoordinateEdit</name>
    <message>
        <source>such as %1</source>
        <translation>例如 %1</translation>
    </message>
    <message>
        <source>Latitude and longitude, as %1, %2 or with signs and letters</source>
        <translation>纬度和经度，形式为 %1、%2，或带正负号和字母</translation>
    </message>
    <message>
        <source>Latitude and longitude: %1, %2 or %3</source>
        <translation>纬度和经度：%1、%2 或 %3</translation>
    </message>
    <message>
        <source>Latitudes have to be below 90°, longitudes below 180°: such as 395427N1162317E.</source>
        <translation>纬度必须小于 90°，经度小于 180°：例如 395427N1162317E。</translation>
    </message>
</context>
<context>
    <name>CoordinateText</name>
    <message>
        <source>This could be read in several ways. Write 48.1234, 16.5678 or 48,1234; 16,5678; south and west with either a sign or a letter.</source>
        <translation>有多种读法。请写成 48.1234, 16.5678 或 48,1234; 16,5678；南纬和西经用负号或字母表示。</translation>
    </message>
    <message>
        <source>Latitudes end at 90°, longitudes at 180°, minutes and seconds before 60: such as 395427N1162317E.</source>
        <translation>纬度不超过 90°，经度不超过 180°，分和秒小于 60：例如 395427N1162317E。</translation>
    </message>
    <message>
        <source>Write 395427N1162317E, 39°54&apos;27&quot;N 116°23&apos;17&quot;E, N39 54.45 E116 23.28 or 39.9076, 116.3881.</source>
        <translation>请写成 395427N1162317E、39°54&apos;27&quot;N 116°23&apos;17&quot;E、N39 54.45 E116 23.28 或 39.9076, 116.3881。</translation>
    </message>
</context>
<context>
    <name>DataEngine</name>
    <message>
        <source>Input is working now, stop first!</source>
        <translation>输入正在运行，请先停止！</translation>
    </message>
    <message>
        <source>The input is not opened: this version has no decoder for &quot;%1&quot;.</source>
        <translation>未打开输入：此版本没有“%1”的解码器。</translation>
    </message>
    <message>
        <source>There is no tracker for sensors of the type %1, its reports are not shown.</source>
        <translation>没有适用于 %1 类型传感器的跟踪器，其报告不显示。</translation>
    </message>
    <message>
        <source>There is no live input to record.</source>
        <translation>没有可记录的实时输入。</translation>
    </message>
    <message>
        <source>Recording input to %1</source>
        <translation>正在将输入记录到 %1</translation>
    </message>
    <message>
        <source>Recording %1 finished, %2 messages.</source>
        <translation>记录 %1 已完成，%2 条报文。</translation>
    </message>
    <message>
        <source>Recording %1 stopped after %2 messages: %3</source>
        <translation>记录 %1 在 %2 条报文后停止：%3</translation>
    </message>
</context>
<context>
    <name>DemoRun</name>
    <message>
        <source>The demonstration cannot be shown: %1</source>
        <translation>无法显示演示：%1</translation>
    </message>
</context>
<context>
    <name>DemoTraffic</name>
    <message>
        <source>%1 was found neither beside the executable nor in the path</source>
        <translation>在可执行文件旁和路径中都找不到 %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 没有响应</translation>
    </message>
    <message>
        <source>%1 names no sensor for the scenario</source>
        <translation>%1 没有给出场景的传感器</translation>
    </message>
    <message>
        <source>No free UDP port: %1</source>
        <translation>没有空闲的 UDP 端口：%1</translation>
    </message>
    <message>
        <source>The demonstration traffic has ended.</source>
        <translation>演示交通已结束。</translation>
    </message>
    <message>
        <source>The demonstration traffic ended with status %1.</source>
        <translation>演示交通以状态 %1 结束。</translation>
    </message>
    <message>
        <source>The demonstration traffic crashed or was killed.</source>
        <translation>演示交通崩溃或被终止。</translation>
    </message>
</context>
<context>
    <name>DetectionLayer</name>
    <message>
        <source>Detection</source>
        <translation>探测</translation>
    </message>
</context>
<context>
    <name>DetectionScale</name>
    <message>
        <source>below %1 %</source>
        <translation>低于 %1 %</translation>
    </message>
    <message>
        <source>%1 % and more</source>
        <translation>%1 % 及以上</translation>
    </message>
    <message>
        <source>%1 to %2 %</source>
        <translation>%1 至 %2 %</translation>
    </message>
</context>
<context>
    <name>DiagnosisWindow</name>
    <message>
        <source>Fine</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Diagnose Input</source>
        <translation>诊断输入</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>重新检查(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the sentences to the clipboard</source>
        <translation>将文字复制到剪贴板</translation>
    </message>
    <message>
        <source>No input is open. Start one or replay a recording, then look again.</source>
        <translation>没有打开输入。请启动输入或回放记录，然后重新检查。</translation>
    </message>
    <message>
        <source>Listening...</source>
        <translation>正在监听...</translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 条报文</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 条报文</translation>
    </message>
    <message>
        <source>Listening... %1 so far.</source>
        <translation>正在监听... 目前 %1。</translation>
    </message>
    <message>
        <source>Something is wrong in what arrived (%1).</source>
        <translation>收到的内容有问题（%1）。</translation>
    </message>
    <message>
        <source>Nothing is wrong in what arrived (%1).</source>
        <translation>收到的内容没有问题（%1）。</translation>
    </message>
</context>
<context>
    <name>DisplayConfigPage</name>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Fills in the colours, fonts and map style of all pages. Each of them can be changed afterwards.</source>
        <translation>填写所有页面的颜色、字体和地图样式。之后均可单独更改。</translation>
    </message>
    <message>
        <source>T&amp;heme:</source>
        <translation>主题(&amp;H)：</translation>
    </message>
    <message>
        <source>Plan view</source>
        <translation>平面视图</translation>
    </message>
    <message>
        <source>Where the view begins while no sensor is configured, and the centre of the range rings.</source>
        <translation>未配置传感器时视图的起始位置，也是距离环的中心。</translation>
    </message>
    <message>
        <source>&amp;Centre:</source>
        <translation>中心(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>背景(&amp;B)：</translation>
    </message>
    <message>
        <source>Background Colour</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>时区(&amp;T)：</translation>
    </message>
    <message>
        <source>St&amp;yle:</source>
        <translation>样式(&amp;Y)：</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>The language of windows, menus and messages. It changes when the program is started again.</source>
        <translation>窗口、菜单和消息的语言。重新启动程序后更改。</translation>
    </message>
    <message>
        <source>Lan&amp;guage:</source>
        <translation>语言(&amp;G)：</translation>
    </message>
    <message>
        <source>The new language is spoken from the next start on.</source>
        <translation>新语言从下次启动起生效。</translation>
    </message>
    <message>
        <source>Choose a time zone.</source>
        <translation>请选择时区。</translation>
    </message>
    <message>
        <source>There is no time zone &quot;%1&quot;.</source>
        <translation>没有时区“%1”。</translation>
    </message>
    <message>
        <source>Time zone of the clock; %1 is the one of this computer.</source>
        <translation>时钟的时区；%1 为本机时区。</translation>
    </message>
    <message>
        <source>Colour of the scope where nothing else is drawn.</source>
        <translation>显示区没有其他内容处的颜色。</translation>
    </message>
    <message>
        <source>How buttons, lists and menus of the windows are drawn.</source>
        <translation>窗口中按钮、列表和菜单的绘制方式。</translation>
    </message>
    <message>
        <source>Te&amp;xt size:</source>
        <translation>文字大小(&amp;X)：</translation>
    </message>
    <message>
        <source>How large the text of windows, lists and menus is, beside what the system has.</source>
        <translation>窗口、列表和菜单文字相对于系统设置的大小。</translation>
    </message>
    <message>
        <source>Text beside the &amp;icons of the tool bars</source>
        <translation>工具栏图标旁显示文字(&amp;I)</translation>
    </message>
    <message>
        <source>Off: the tool bars have icons alone and need less room.</source>
        <translation>关闭：工具栏只有图标，占用空间更少。</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>日志文件</translation>
    </message>
    <message>
        <source>Be&amp;gin a new file at:</source>
        <translation>新建文件的大小(&amp;A)：</translation>
    </message>
    <message>
        <source>How large a file of messages grows; 0 stands for no file.</source>
        <translation>消息文件的最大大小；0 表示不写文件。</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>无文件</translation>
    </message>
    <message>
        <source>&amp;Files kept:</source>
        <translation>保留的文件数(&amp;F)：</translation>
    </message>
    <message>
        <source>How many files of messages there are at most; the oldest is removed.</source>
        <translation>消息文件的最大数量；最旧的被删除。</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>With a password settings are locked: who does not have it changes none of them.</source>
        <translation>设有密码时设置被锁定：没有密码者不能更改。</translation>
    </message>
    <message>
        <source>&amp;Password for settings:</source>
        <translation>设置密码(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Restart Now</source>
        <translation>立即重启(&amp;R)</translation>
    </message>
    <message>
        <source>Applies the settings, closes the program and starts it again as it was started. A live input that is running is opened again.</source>
        <translation>应用设置，关闭程序，并按原来的方式重新启动。正在运行的实时输入会重新打开。</translation>
    </message>
</context>
<context>
    <name>EchoExplanation</name>
    <message>
        <source>Range</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>cell %1 from the antenna on, each %2 m long</source>
        <translation>从天线起第 %1 个单元，每个长 %2 m</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>方位</translation>
    </message>
    <message>
        <source>one of %1 directions of a turn; the newest radial over its middle counts</source>
        <translation>一圈 %1 个方向之一；以覆盖其中心的最新径向线为准</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>only uncompressed video of 8 bits a cell is drawn</source>
        <translation>只绘制每单元 8 位的未压缩视频</translation>
    </message>
    <message>
        <source>Cells in radial</source>
        <translation>径向线单元数</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>日时间</translation>
    </message>
    <message>
        <source>Message number</source>
        <translation>报文编号</translation>
    </message>
    <message>
        <source>gaps in it are counted as missing messages</source>
        <translation>其中的间断计为缺失报文</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>drawn around the place of the sensor of that SAC/SIC</source>
        <translation>以该 SAC/SIC 的传感器位置为中心绘制</translation>
    </message>
    <message>
        <source>%1 bits a cell</source>
        <translation>每单元 %1 位</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>幅度</translation>
    </message>
    <message>
        <source>%1 of 255</source>
        <translation>%1 / 255</translation>
    </message>
    <message>
        <source>as drawn; the radar&apos;s next radial of this direction is waited for</source>
        <translation>按绘制值；等待雷达在该方向的下一条径向线</translation>
    </message>
    <message>
        <source>not above the threshold of %1, so it is not drawn</source>
        <translation>未超过门限 %1，因此不绘制</translation>
    </message>
    <message>
        <source>above the threshold of %1; fades within %2 s</source>
        <translation>超过门限 %1;%2 s 内消退</translation>
    </message>
    <message>
        <source>%1, octet %2</source>
        <translation>%1，字节 %2</translation>
    </message>
</context>
<context>
    <name>EmptyScope</name>
    <message>
        <source>Nothing arrives on %1: check the sender, and the input in Settings (F10).</source>
        <translation>%1 上没有收到任何数据：请检查发送方和“设置”（F10）中的输入。</translation>
    </message>
    <message>
        <source>There are no targets in what %1 brings; if there should be, check sensor and processor in Settings (F10).</source>
        <translation>%1 的数据中没有目标；若应有目标，请检查“设置”（F10）中的传感器和处理器。</translation>
    </message>
</context>
<context>
    <name>ExitReport</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>Fault</name>
    <message>
        <source>fewer than three octets of a block header</source>
        <translation>数据块头不足三个字节</translation>
    </message>
    <message>
        <source>block length is zero</source>
        <translation>数据块长度为零</translation>
    </message>
    <message>
        <source>block length is less than the header&apos;s</source>
        <translation>数据块长度小于块头长度</translation>
    </message>
    <message>
        <source>block runs past the end of the data</source>
        <translation>数据块超出数据末尾</translation>
    </message>
    <message>
        <source>no table for this category</source>
        <translation>没有该类别的定义表</translation>
    </message>
    <message>
        <source>FSPEC runs past the end of the block</source>
        <translation>FSPEC 超出数据块末尾</translation>
    </message>
    <message>
        <source>FSPEC bit of no item is set</source>
        <translation>置位的 FSPEC 位不对应任何数据项</translation>
    </message>
    <message>
        <source>item runs past the end of the block</source>
        <translation>数据项超出数据块末尾</translation>
    </message>
    <message>
        <source>repetition count runs past the end of the block</source>
        <translation>重复次数超出数据块末尾</translation>
    </message>
    <message>
        <source>explicit length is zero</source>
        <translation>显式长度为零</translation>
    </message>
    <message>
        <source>message header is cut short</source>
        <translation>报文头被截断</translation>
    </message>
    <message>
        <source>unknown message type</source>
        <translation>未知报文类型</translation>
    </message>
    <message>
        <source>length leaves no room for the message</source>
        <translation>长度容不下报文</translation>
    </message>
    <message>
        <source>message runs past the end of the data</source>
        <translation>报文超出数据末尾</translation>
    </message>
    <message>
        <source>length does not fit the number of records</source>
        <translation>长度与记录数不符</translation>
    </message>
    <message>
        <source>no frame of the encapsulation</source>
        <translation>不是该封装的帧</translation>
    </message>
    <message>
        <source>the length is not that of the downlink format</source>
        <translation>长度与下行格式不符</translation>
    </message>
    <message>
        <source>wrong parity</source>
        <translation>奇偶校验错误</translation>
    </message>
    <message>
        <source>not decoded</source>
        <translation>未解码</translation>
    </message>
</context>
<context>
    <name>FieldForm</name>
    <message>
        <source>INVALID COORDINATE</source>
        <translation>无效坐标</translation>
    </message>
</context>
<context>
    <name>FileEdit</name>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
</context>
<context>
    <name>FileReader</name>
    <message>
        <source>%1 (format %2) cannot be read.</source>
        <translation>无法读取 %1（格式 %2）。</translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation>没有打开文件。</translation>
    </message>
    <message>
        <source>The recording has no time stamps.</source>
        <translation>记录文件没有时间戳。</translation>
    </message>
</context>
<context>
    <name>FileWriter</name>
    <message>
        <source>%1 (format %2) cannot be written.</source>
        <translation>无法写入 %1（格式 %2）。</translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation>没有打开文件。</translation>
    </message>
</context>
<context>
    <name>FinalFormatFraming</name>
    <message>
        <source>A frame&apos;s length field says %1.</source>
        <translation>某帧的长度字段为 %1。</translation>
    </message>
    <message>
        <source>The file ends within a frame.</source>
        <translation>文件在帧内结束。</translation>
    </message>
    <message>
        <source>A frame of %1 octets has no end mark.</source>
        <translation>一个 %1 字节的帧没有结束标记。</translation>
    </message>
</context>
<context>
    <name>FinalFormatWriter</name>
    <message>
        <source>A message of %1 octets does not fit into a frame.</source>
        <translation>%1 字节的报文放不进一帧。</translation>
    </message>
    <message>
        <source>The time stamp cannot be stored.</source>
        <translation>无法保存时间戳。</translation>
    </message>
</context>
<context>
    <name>FirstStartGuide</name>
    <message>
        <source>Getting Started</source>
        <translation>入门</translation>
    </message>
    <message>
        <source>What arrives there is told below, before anything is set.</source>
        <translation>在更改任何设置之前，下方会说明该处收到的内容。</translation>
    </message>
    <message>
        <source>Where do the data come from?</source>
        <translation>数据来自哪里？</translation>
    </message>
    <message>
        <source>Which sensor is it?</source>
        <translation>是哪个传感器？</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>Nothing was recognised, so the sensor must be described by hand.</source>
        <translation>没有识别出任何内容，因此需要手动描述传感器。</translation>
    </message>
    <message>
        <source>Without a sensor nothing can be shown: choose its type.</source>
        <translation>没有传感器就无法显示：请选择其类型。</translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation>上一步(&amp;K)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
</context>
<context>
    <name>GeoCompassRose</name>
    <message>
        <source>Compass rose</source>
        <translation>罗经圈</translation>
    </message>
</context>
<context>
    <name>GeoLastPlaceMap</name>
    <message>
        <source>Last places</source>
        <translation>最后位置</translation>
    </message>
</context>
<context>
    <name>GeoMapKey</name>
    <message>
        <source>Weather</source>
        <translation>气象</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>图例</translation>
    </message>
</context>
<context>
    <name>GeoNorthArrow</name>
    <message>
        <source>N</source>
        <translation>北</translation>
    </message>
    <message>
        <source>North arrow</source>
        <translation>指北针</translation>
    </message>
</context>
<context>
    <name>GeoPlotMap</name>
    <message>
        <source>%1 plot</source>
        <translation>%1 点迹</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>点迹</translation>
    </message>
</context>
<context>
    <name>GeoRangeRingMap</name>
    <message>
        <source>%1 NM</source>
        <translation>%1 NM</translation>
    </message>
    <message>
        <source>Range rings</source>
        <translation>距离环</translation>
    </message>
</context>
<context>
    <name>GeoScaleBar</name>
    <message>
        <source>%1 NM</source>
        <translation>%1 NM</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>比例尺</translation>
    </message>
</context>
<context>
    <name>GeoSensorMap</name>
    <message>
        <source>%1 %2 NM</source>
        <translation>%1 %2 NM</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
</context>
<context>
    <name>GeoStaticMap</name>
    <message>
        <source>Static maps</source>
        <translation>静态地图</translation>
    </message>
</context>
<context>
    <name>GeoTileMap</name>
    <message>
        <source>Bottom tiles</source>
        <translation>下层瓦片</translation>
    </message>
    <message>
        <source>Top tiles</source>
        <translation>上层瓦片</translation>
    </message>
</context>
<context>
    <name>GeoVideoMap</name>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
</context>
<context>
    <name>GeoWeatherMap</name>
    <message>
        <source>Weather</source>
        <translation>气象</translation>
    </message>
</context>
<context>
    <name>Gestures</name>
    <message>
        <source>Left click on a symbol or label</source>
        <translation>左键单击符号或标牌</translation>
    </message>
    <message>
        <source>Select the track</source>
        <translation>选择航迹</translation>
    </message>
    <message>
        <source>Left click once more</source>
        <translation>再次左键单击</translation>
    </message>
    <message>
        <source>Select the next track at this place</source>
        <translation>选择此处的下一条航迹</translation>
    </message>
    <message>
        <source>Right click on a symbol or label</source>
        <translation>右键单击符号或标牌</translation>
    </message>
    <message>
        <source>What can be done with the track</source>
        <translation>可对航迹执行的操作</translation>
    </message>
    <message>
        <source>Right click elsewhere</source>
        <translation>在别处右键单击</translation>
    </message>
    <message>
        <source>What can be done at this place</source>
        <translation>在此处可执行的操作</translation>
    </message>
    <message>
        <source>Right drag on the map</source>
        <translation>在地图上右键拖动</translation>
    </message>
    <message>
        <source>Move the view</source>
        <translation>移动视图</translation>
    </message>
    <message>
        <source>Right drag on a label</source>
        <translation>在标牌上右键拖动</translation>
    </message>
    <message>
        <source>Move the label</source>
        <translation>移动标牌</translation>
    </message>
    <message>
        <source>Right double-click</source>
        <translation>右键双击</translation>
    </message>
    <message>
        <source>Bring this point to the centre</source>
        <translation>将该点置于中心</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Zoom around the pointer</source>
        <translation>以指针为中心缩放</translation>
    </message>
    <message>
        <source>Alt + wheel</source>
        <translation>Alt + 滚轮</translation>
    </message>
    <message>
        <source>Zoom in small steps</source>
        <translation>小步缩放</translation>
    </message>
    <message>
        <source>Left click with the cross</source>
        <translation>用十字光标左键单击</translation>
    </message>
    <message>
        <source>Place the centre of the range rings</source>
        <translation>放置距离环中心</translation>
    </message>
    <message>
        <source>Rotate clockwise by 1°</source>
        <translation>顺时针旋转 1°</translation>
    </message>
    <message>
        <source>Rotate counter-clockwise by 1°</source>
        <translation>逆时针旋转 1°</translation>
    </message>
    <message>
        <source>Rotate clockwise by 0.1°</source>
        <translation>顺时针旋转 0.1°</translation>
    </message>
    <message>
        <source>Rotate counter-clockwise by 0.1°</source>
        <translation>逆时针旋转 0.1°</translation>
    </message>
</context>
<context>
    <name>GpsFraming</name>
    <message>
        <source>The file ends within a time stamp.</source>
        <translation>文件在时间戳内结束。</translation>
    </message>
    <message>
        <source>A data block&apos;s length field says %1.</source>
        <translation>某数据块的长度字段为 %1。</translation>
    </message>
    <message>
        <source>The file ends within a data block.</source>
        <translation>文件在数据块内结束。</translation>
    </message>
</context>
<context>
    <name>GzipSource</name>
    <message>
        <source>Unpacking cannot be set up.</source>
        <translation>无法准备解压。</translation>
    </message>
    <message>
        <source>The compressed file ends early.</source>
        <translation>压缩文件提前结束。</translation>
    </message>
    <message>
        <source>The compressed file is damaged: %1.</source>
        <translation>压缩文件已损坏：%1。</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>Unpacking cannot be taken up.</source>
        <translation>无法继续解压。</translation>
    </message>
</context>
<context>
    <name>HeadlessRun</name>
    <message>
        <source>Cannot read the sensor file %1</source>
        <translation>无法读取传感器文件 %1</translation>
    </message>
    <message>
        <source>The input is open already.</source>
        <translation>输入已打开。</translation>
    </message>
    <message>
        <source>No input is open.</source>
        <translation>没有打开输入。</translation>
    </message>
    <message>
        <source>There is no window.</source>
        <translation>没有窗口。</translation>
    </message>
    <message>
        <source>Receiving on %1</source>
        <translation>正在 %1 上接收</translation>
    </message>
    <message>
        <source>%1 is written again.</source>
        <translation>重新写入 %1。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Data engine did not confirm the input close within 10 s, forcing shutdown.</source>
        <translation>数据引擎未在 10 s 内确认关闭输入，强制退出。</translation>
    </message>
    <message>
        <source>Data processing thread did not stop within 5 s, abandoning it.</source>
        <translation>数据处理线程未在 5 s 内停止，放弃等待。</translation>
    </message>
</context>
<context>
    <name>HealthDock</name>
    <message>
        <source>Input Health</source>
        <translation>输入健康状况</translation>
    </message>
</context>
<context>
    <name>HealthLamp</name>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>How the input does; a click shows its sources.</source>
        <translation>输入的状况；单击显示其数据源。</translation>
    </message>
</context>
<context>
    <name>HealthPane</name>
    <message>
        <source>Sources</source>
        <translation>数据源</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>%1 Manual</source>
        <translation>%1 手册</translation>
    </message>
    <message>
        <source>◀ Back</source>
        <translation>◀ 后退</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Forward ▶</source>
        <translation>前进 ▶</translation>
    </message>
    <message>
        <source>The next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>The index page</source>
        <translation>索引页</translation>
    </message>
    <message>
        <source>A−</source>
        <translation>A−</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>缩小文字</translation>
    </message>
    <message>
        <source>A+</source>
        <translation>A+</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>放大文字</translation>
    </message>
    <message>
        <source>Search all pages (Ctrl+F)</source>
        <translation>搜索所有页面（Ctrl+F）</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>搜索所有页面</translation>
    </message>
    <message>
        <source>What the search has found</source>
        <translation>搜索结果</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>没有页面包含所有这些文字。</translation>
    </message>
    <message>
        <source>This page is available in English only.</source>
        <translation>本页仅有英文版。</translation>
    </message>
</context>
<context>
    <name>InputConfigPage</name>
    <message>
        <source>Choose a recording file.</source>
        <translation>请选择记录文件。</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>此文件不存在。</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>无法读取此文件。</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>&amp;Data from:</source>
        <translation>数据来自(&amp;D)：</translation>
    </message>
    <message>
        <source>&amp;Second input</source>
        <translation>第二路输入(&amp;S)</translation>
    </message>
    <message>
        <source>Listens on another port too: for sensors that send over two networks.</source>
        <translation>同时监听另一个端口：用于通过两个网络发送的传感器。</translation>
    </message>
    <message>
        <source>D&amp;evice:</source>
        <translation>设备(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Baud rate:</source>
        <translation>波特率(&amp;B)：</translation>
    </message>
    <message>
        <source>&amp;Parity:</source>
        <translation>校验(&amp;P)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>奇</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空号</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>传号</translation>
    </message>
    <message>
        <source>&amp;Stop bits:</source>
        <translation>停止位(&amp;S)：</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>1.5</source>
        <translation>1.5</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>Recording File</source>
        <translation>记录文件</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>文件(&amp;F)：</translation>
    </message>
    <message>
        <source>Start &amp;again at the end of the file</source>
        <translation>到文件末尾时重新开始(&amp;A)</translation>
    </message>
    <message>
        <source>Choose where the data comes from.</source>
        <translation>请选择数据来源。</translation>
    </message>
    <message>
        <source>Name the serial device.</source>
        <translation>请指定串口设备。</translation>
    </message>
    <message>
        <source>Enter a rate in bits per second.</source>
        <translation>请输入每秒比特数。</translation>
    </message>
    <message>
        <source>How the sensor&apos;s messages come in: over a network, a serial line, or from a recording.</source>
        <translation>传感器报文的来源：网络、串口或记录文件。</translation>
    </message>
    <message>
        <source>The input is opened by itself as soon as the program runs.</source>
        <translation>程序运行后自动打开输入。</translation>
    </message>
    <message>
        <source>The serial port that the sensor&apos;s line is plugged into.</source>
        <translation>连接传感器线路的串口。</translation>
    </message>
    <message>
        <source>Bits per second, as the sender has it set.</source>
        <translation>每秒比特数，与发送方设置一致。</translation>
    </message>
    <message>
        <source>Bits of a character on the line.</source>
        <translation>线路上每个字符的位数。</translation>
    </message>
    <message>
        <source>The check bit of a character on the line.</source>
        <translation>线路上每个字符的校验位。</translation>
    </message>
    <message>
        <source>How long the line rests between two characters.</source>
        <translation>线路在两个字符之间的停顿时间。</translation>
    </message>
    <message>
        <source>The recording that is played when the input is started.</source>
        <translation>启动输入时回放的记录。</translation>
    </message>
    <message>
        <source>Plays the recording over and over until it is stopped.</source>
        <translation>反复回放记录，直到停止。</translation>
    </message>
    <message>
        <source>%1 is not there now.</source>
        <translation>%1 目前不存在。</translation>
    </message>
    <message>
        <source>Complete the fields above to see what arrives.</source>
        <translation>请填写上面的字段以查看收到的内容。</translation>
    </message>
    <message>
        <source>Stop the input first: its settings are locked while it runs.</source>
        <translation>请先停止输入：运行时其设置被锁定。</translation>
    </message>
    <message>
        <source>Start input a&amp;t program start</source>
        <translation>程序启动时启动输入(&amp;T)</translation>
    </message>
    <message>
        <source>Data b&amp;its:</source>
        <translation>数据位(&amp;I):</translation>
    </message>
</context>
<context>
    <name>InputHealth</name>
    <message>
        <source>%1 listens on UDP port %2 too.</source>
        <translation>%1 也在监听 UDP 端口 %2。</translation>
    </message>
    <message>
        <source>NO DATA since %1</source>
        <translation>自 %1 起无数据</translation>
    </message>
    <message>
        <source>There is a gap in %1: the picture is old.</source>
        <translation>%1 中有空缺：画面已过时。</translation>
    </message>
    <message>
        <source>Nothing arrives on %1 any more: the picture is old.</source>
        <translation>%1 上不再收到数据：画面已过时。</translation>
    </message>
    <message>
        <source>Nothing has arrived on %1 yet.</source>
        <translation>%1 上尚未收到数据。</translation>
    </message>
    <message>
        <source>%1 listens there too, and takes what is sent.</source>
        <translation>%1 也在该处监听，并取走了所发送的数据。</translation>
    </message>
    <message>
        <source>Check the sender and the line.</source>
        <translation>请检查发送方和线路。</translation>
    </message>
    <message>
        <source>Check the sender, and the input in Settings (F10).</source>
        <translation>请检查发送方和“设置”（F10）中的输入。</translation>
    </message>
    <message>
        <source>The safety nets are no longer heard, since %1: the indicators show what they said then.</source>
        <translation>自 %1 起不再收到安全网数据：指示器显示的是当时的内容。</translation>
    </message>
    <message>
        <source>No data from %1 since %2.</source>
        <translation>自 %2 起没有来自 %1 的数据。</translation>
    </message>
    <message>
        <source>NO DATA since %1 from %2: the picture is old.</source>
        <translation>自 %1 起没有来自 %2 的数据：画面已过时。</translation>
    </message>
    <message>
        <source>Data again from %1, after %2 s without any.</source>
        <translation>中断 %2 s 后重新收到 %1 的数据。</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>The %1 of %2 has ended only because nothing is heard of the safety nets any more.</source>
        <translation>%2 的 %1 仅因不再收到安全网数据而结束。</translation>
    </message>
    <message>
        <source>%1 listens on UDP port %2 too: of the two, one alone gets each datagram.</source>
        <translation>%1 也在监听 UDP 端口 %2：每个数据报只有其中一方能收到。</translation>
    </message>
</context>
<context>
    <name>InputNotices</name>
    <message>
        <source>No input is running.</source>
        <translation>没有输入在运行。</translation>
    </message>
    <message>
        <source>No alerts.</source>
        <translation>没有告警。</translation>
    </message>
    <message>
        <source>Nothing of what %1 brings is seen. %2
More: View, Input Health.</source>
        <translation>%1 的数据均不可见。%2
详情：视图 → 输入健康状况。</translation>
    </message>
    <message>
        <source>No tracks. The target reports of %1 are shown as plots.</source>
        <translation>没有航迹。%1 的目标报告以点迹显示。</translation>
    </message>
    <message>
        <source>No tracks. %1</source>
        <translation>没有航迹。%1</translation>
    </message>
    <message>
        <source>No tracks yet in %1.</source>
        <translation>%1 中尚无航迹。</translation>
    </message>
    <message>
        <source>No tracks. Listening on %1.</source>
        <translation>没有航迹。正在监听 %1。</translation>
    </message>
</context>
<context>
    <name>InputProbe</name>
    <message>
        <source>UDP port %1</source>
        <translation>UDP 端口 %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>UDP port %1 is taken by %2. Only one of two listeners gets what is sent to a port, so it is left alone: end that program, or choose another port.</source>
        <translation>UDP 端口 %1 已被 %2 占用。发送到端口的数据只有其中一个监听者能收到，因此不去干扰它：请结束该程序，或选择其他端口。</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>另一个程序</translation>
    </message>
</context>
<context>
    <name>InputProposal</name>
    <message>
        <source>It holds no reports of targets.</source>
        <translation>其中没有目标报告。</translation>
    </message>
    <message>
        <source>Its reports carry no aircraft addresses, so they make no tracks.</source>
        <translation>其报告没有航空器地址，因此不能形成航迹。</translation>
    </message>
    <message>
        <source>Its reports carry no track numbers, so they make no tracks.</source>
        <translation>其报告没有航迹号，因此不能形成航迹。</translation>
    </message>
    <message>
        <source>Its reports carry no polar positions (I010/040), without which they make no tracks.</source>
        <translation>其报告没有极坐标位置（I010/040），没有它就不能形成航迹。</translation>
    </message>
    <message>
        <source>Its reports carry no positions in WGS-84, so they make no tracks.</source>
        <translation>其报告没有 WGS-84 位置，因此不能形成航迹。</translation>
    </message>
    <message>
        <source>No report carries both an identity and a position, so they make no tracks.</source>
        <translation>没有报告同时具有识别信息和位置，因此不能形成航迹。</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation>%1 %2/%3</translation>
    </message>
    <message>
        <source>It holds no extended squitters, without which there are no tracks.</source>
        <translation>其中没有扩展间歇信号（Extended Squitter），没有它就没有航迹。</translation>
    </message>
    <message>
        <source>No position of an aircraft could be made out.</source>
        <translation>无法得出任何航空器的位置。</translation>
    </message>
    <message>
        <source>It holds no tracks.</source>
        <translation>其中没有航迹。</translation>
    </message>
    <message>
        <source>Played as %1 &quot;%2&quot; of the sensor file</source>
        <translation>按传感器文件中的 %1“%2”回放</translation>
    </message>
    <message>
        <source>Played as %1</source>
        <translation>按 %1 回放</translation>
    </message>
    <message>
        <source>, the other source left out</source>
        <translation>，忽略了另一个数据源</translation>
    </message>
    <message>
        <source>, %1 other sources left out</source>
        <translation>，忽略了其他 %1 个数据源</translation>
    </message>
    <message>
        <source>; where it stands is not known, and its positions are relative to that</source>
        <translation>；其位置未知，各目标位置均以其为基准</translation>
    </message>
    <message>
        <source>Its reports carry no track numbers, so they make no tracks; the plot layer shows them.</source>
        <translation>其报告不含航迹号，因此不形成航迹；点迹图层会显示它们。</translation>
    </message>
    <message>
        <source>It holds no tracks; the plot layer shows its plots.</source>
        <translation>其中没有航迹；点迹图层显示其点迹。</translation>
    </message>
</context>
<context>
    <name>InputRecorder</name>
    <message>
        <source>the file has been removed</source>
        <translation>文件已被删除</translation>
    </message>
</context>
<context>
    <name>InputSession</name>
    <message>
        <source>serial line %1</source>
        <translation>串口 %1</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>记录 %1</translation>
    </message>
    <message>
        <source>UDP %1:%2</source>
        <translation>UDP %1:%2</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP 端口 %1</translation>
    </message>
    <message>
        <source>Opening %1 ...</source>
        <translation>正在打开 %1 ...</translation>
    </message>
    <message>
        <source>Paused. The picture is not being updated.</source>
        <translation>已暂停。画面不更新。</translation>
    </message>
    <message>
        <source>Input stopped. %1
This is the last picture.</source>
        <translation>输入已停止。%1
这是最后的画面。</translation>
    </message>
    <message>
        <source>Input stopped. This is the last picture.</source>
        <translation>输入已停止。这是最后的画面。</translation>
    </message>
    <message>
        <source>No input is running. Press Start to open %1.</source>
        <translation>没有输入在运行。按“启动”打开 %1。</translation>
    </message>
    <message>
        <source>Input is working now, stop first!</source>
        <translation>输入正在运行，请先停止！</translation>
    </message>
    <message>
        <source>Unknown sensor</source>
        <translation>未知传感器</translation>
    </message>
    <message>
        <source>Inpput is not working now.</source>
        <translation>输入当前未运行。</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <source>No sensor is configured. Choose one in Settings (F10), then press Start; or let Help, Getting Started, lead you.</source>
        <translation>未配置传感器。请在“设置”（F10）中选择，然后按“启动”；或使用“帮助”→“入门”的引导。</translation>
    </message>
    <message>
        <source>%1
Another attempt is made by itself.</source>
        <translation>%1
程序会自动再次尝试。</translation>
    </message>
    <message>
        <source>No further attempt is made to open the input.</source>
        <translation>不再尝试打开输入。</translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message>
        <source>Plot</source>
        <translation>点迹</translation>
    </message>
    <message>
        <source>The alert is no longer there, or it is an emergency: what a track says of itself is explained with the track.</source>
        <translation>该告警已不存在，或为紧急情况：航迹自身报告的内容在航迹处解释。</translation>
    </message>
    <message>
        <source>Alert %1</source>
        <translation>告警 %1</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>解释</translation>
    </message>
    <message>
        <source>Select a track to see where its values come from; or point at a plot, weather or radar video and press Ctrl+E.</source>
        <translation>选择一条航迹以查看其数值来源；或指向点迹、气象或雷达视频并按 Ctrl+E。</translation>
    </message>
    <message>
        <source>Explain Plot</source>
        <translation>解释点迹</translation>
    </message>
    <message>
        <source>Explain Radar Video</source>
        <translation>解释雷达视频</translation>
    </message>
    <message>
        <source>Explain Weather</source>
        <translation>解释气象</translation>
    </message>
    <message>
        <source>The report of this plot is kept no more.</source>
        <translation>该点迹的报告已不再保留。</translation>
    </message>
    <message>
        <source>Plot of %1</source>
        <translation>%1 的点迹</translation>
    </message>
    <message>
        <source>Its report</source>
        <translation>其报告</translation>
    </message>
    <message>
        <source>Weather, level %1</source>
        <translation>气象，等级 %1</translation>
    </message>
    <message>
        <source>Its vectors</source>
        <translation>其矢量</translation>
    </message>
    <message>
        <source>Start of its picture</source>
        <translation>其图像的开始</translation>
    </message>
    <message>
        <source>End of its picture</source>
        <translation>其图像的结束</translation>
    </message>
    <message>
        <source>Radar video</source>
        <translation>雷达视频</translation>
    </message>
</context>
<context>
    <name>InspectionPane</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>From</source>
        <translation>来自</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>时龄</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>到达</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>数据项</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Report as Text</source>
        <translation>报告（文本）</translation>
    </message>
    <message>
        <source>Report as NDJSON</source>
        <translation>报告（NDJSON）</translation>
    </message>
    <message>
        <source>Report as Hexadecimal</source>
        <translation>报告（十六进制）</translation>
    </message>
    <message>
        <source>All Reports as NDJSON</source>
        <translation>所有报告（NDJSON）</translation>
    </message>
    <message>
        <source>Newest report</source>
        <translation>最新报告</translation>
    </message>
    <message>
        <source>Report %1 before the newest</source>
        <translation>最新报告之前第 %1 个报告</translation>
    </message>
    <message>
        <source>No report is kept</source>
        <translation>没有保留报告</translation>
    </message>
    <message>
        <source>%1: %2, %3 octets</source>
        <translation>%1：%2，%3 字节</translation>
    </message>
    <message>
        <source>Values shown</source>
        <translation>显示的值</translation>
    </message>
    <message>
        <source>Last reports</source>
        <translation>最近的报告</translation>
    </message>
    <message>
        <source>Items of the report</source>
        <translation>报告的数据项</translation>
    </message>
</context>
<context>
    <name>LayoutMenu</name>
    <message>
        <source>Cannot write the layout file %1</source>
        <translation>无法写入布局文件 %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>LayoutSaveWindow</name>
    <message>
        <source>Make it the &amp;current layout</source>
        <translation>设为当前布局(&amp;C)</translation>
    </message>
    <message>
        <source>Save Layout</source>
        <translation>保存布局</translation>
    </message>
    <message>
        <source>The current layout is shown again when the program is started.</source>
        <translation>程序下次启动时将再次显示当前布局。</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>The layout needs a name.</source>
        <translation>布局需要名称。</translation>
    </message>
    <message>
        <source>The name &quot;default&quot; belongs to the built-in layout.</source>
        <translation>名称“default”属于内置布局。</translation>
    </message>
    <message>
        <source>Replace the layout &quot;%1&quot;?</source>
        <translation>替换布局“%1”？</translation>
    </message>
</context>
<context>
    <name>LegacyMapFile</name>
    <message>
        <source>This is not a valid Legacy format map file.</source>
        <translation>这不是有效的旧格式地图文件。</translation>
    </message>
    <message>
        <source>Failed to parse the legacy map file at line %1.</source>
        <translation>解析旧格式地图文件第 %1 行失败。</translation>
    </message>
</context>
<context>
    <name>LibraryVersions</name>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>ASTERIX library</source>
        <translation>ASTERIX 库</translation>
    </message>
    <message>
        <source>Mode S library</source>
        <translation>S 模式库</translation>
    </message>
    <message>
        <source>Aircraft database library</source>
        <translation>航空器数据库库</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1（编译时为 %2）</translation>
    </message>
</context>
<context>
    <name>ListExport</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>ListFilter</name>
    <message>
        <source>There is no column &quot;%1&quot;. Columns are: %2.</source>
        <translation>没有列“%1”。可用的列：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no numbers to compare.</source>
        <translation>“%1”中没有可比较的数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; wants a number, as in %2.</source>
        <translation>“%1”需要数字，例如 %2。</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Words that a row must hold, or columns: %1. A text with blanks stands in quotes.</source>
        <translation>行必须包含的文字，或列：%1。含空格的文字用引号括起。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Copy List</source>
        <translation>复制列表</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>导出 CSV...</translation>
    </message>
    <message>
        <source>List Menu</source>
        <translation>列表菜单</translation>
    </message>
    <message>
        <source>Columns, copy, export</source>
        <translation>列、复制、导出</translation>
    </message>
    <message>
        <source>%1 All rows are shown.</source>
        <translation>%1 显示所有行。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中的 %1</translation>
    </message>
    <message>
        <source>The filter lets none of the %1 rows through.</source>
        <translation>筛选后 %1 行中没有一行符合。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>导出 CSV</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗号分隔值 (*.csv)</translation>
    </message>
</context>
<context>
    <name>ListPanes</name>
    <message>
        <source>Track List</source>
        <translation>航迹列表</translation>
    </message>
    <message>
        <source>Alert List</source>
        <translation>告警列表</translation>
    </message>
    <message>
        <source>Track List - %1</source>
        <translation>航迹列表 - %1</translation>
    </message>
    <message>
        <source>Alert List - %1</source>
        <translation>告警列表 - %1</translation>
    </message>
</context>
<context>
    <name>LockCommands</name>
    <message>
        <source>The settings are locked.</source>
        <translation>设置已锁定。</translation>
    </message>
    <message>
        <source>The settings are not locked.</source>
        <translation>设置未锁定。</translation>
    </message>
    <message>
        <source>Unlock Settings...</source>
        <translation>解锁设置...</translation>
    </message>
    <message>
        <source>Lock Settings</source>
        <translation>锁定设置</translation>
    </message>
    <message>
        <source>Lock Settings...</source>
        <translation>锁定设置...</translation>
    </message>
</context>
<context>
    <name>LogFile</name>
    <message numerus="yes">
        <source>%n lines are missing here.</source>
        <translation>
            <numerusform>此处缺少 %n 行。</numerusform>
        </translation>
    </message>
    <message>
        <source>The log file %1 cannot be written: %2. It goes on when it can.</source>
        <translation>无法写入日志文件 %1：%2。可写时将继续。</translation>
    </message>
    <message>
        <source>Another run of the program writes the log file; this one does not.</source>
        <translation>程序的另一个实例正在写日志文件；本实例不写。</translation>
    </message>
    <message>
        <source>No log file can be written in %1.</source>
        <translation>无法在 %1 中写入日志文件。</translation>
    </message>
    <message>
        <source>The log file %1 cannot be put aside: %2. It goes on when it can.</source>
        <translation>无法归档日志文件 %1：%2。可行时将继续。</translation>
    </message>
</context>
<context>
    <name>LogGate</name>
    <message>
        <source>%1 … %2 more like this</source>
        <translation>%1 … 另有 %2 条类似信息</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>打开日志文件夹</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>%1 is running, do you want to exit?</source>
        <translation>%1 正在运行，要退出吗？</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The input is running on %1. Stop it?</source>
        <translation>输入正在 %1 上运行。要停止吗？</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>Debug functions enabled</source>
        <translation>已启用调试功能</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Loading map %1: %2</source>
        <translation>正在加载地图 %1：%2</translation>
    </message>
    <message>
        <source>Radar video of SAC %1, SIC %2 is not shown: no sensor has this identification.</source>
        <translation>不显示 SAC %1、SIC %2 的雷达视频：没有传感器使用该标识。</translation>
    </message>
    <message>
        <source>1 label shortened</source>
        <translation>1 个标牌已缩短</translation>
    </message>
    <message>
        <source>%1 labels shortened</source>
        <translation>%1 个标牌已缩短</translation>
    </message>
    <message>
        <source>UDP input is working now, stop it first!</source>
        <translation>UDP 输入正在运行，请先停止！</translation>
    </message>
    <message>
        <source>Cannot read the sensor file %1</source>
        <translation>无法读取传感器文件 %1</translation>
    </message>
    <message>
        <source>Cannot load the aircraft database: %1</source>
        <translation>无法加载航空器数据库：%1</translation>
    </message>
    <message>
        <source>--sensor auto is for recordings; the live input is shown with the configured sensor.</source>
        <translation>--sensor auto 仅用于记录文件；实时输入按已配置的传感器显示。</translation>
    </message>
    <message>
        <source>First frame after %1 ms</source>
        <translation>%1 ms 后显示第一帧</translation>
    </message>
    <message>
        <source>No window can be opened with the profile %1.</source>
        <translation>无法用配置文件 %1 打开窗口。</translation>
    </message>
    <message>
        <source>Another window with these settings is open: changes in this one are not saved. (Other settings: File, New Window With Profile...)</source>
        <translation>已有另一个窗口使用这些设置：此窗口中的更改不会保存。（使用其他设置：文件 → 用配置文件打开新窗口...）</translation>
    </message>
    <message>
        <source>The input is not started by itself: the program has crashed twice within a minute of its start. Press Start to try again.</source>
        <translation>未自动启动输入：程序两次在启动后一分钟内崩溃。按“启动”重试。</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>%1 › %2</source>
        <translation>%1 › %2</translation>
    </message>
</context>
<context>
    <name>ManualView</name>
    <message>
        <source>Page of the manual</source>
        <translation>手册页面</translation>
    </message>
</context>
<context>
    <name>MapConfigPage</name>
    <message>
        <source>Map Layers</source>
        <translation>地图图层</translation>
    </message>
    <message>
        <source>Static maps</source>
        <translation>静态地图</translation>
    </message>
    <message>
        <source>Show static ma&amp;ps</source>
        <translation>显示静态地图(&amp;P)</translation>
    </message>
    <message>
        <source>Map inde&amp;x:</source>
        <translation>地图索引(&amp;X)：</translation>
    </message>
    <message>
        <source>Select Map Index</source>
        <translation>选择地图索引</translation>
    </message>
    <message>
        <source>Map Index (*.idx);;All files (*)</source>
        <translation>地图索引 (*.idx)；；所有文件 (*)</translation>
    </message>
    <message>
        <source>S&amp;tyle sheet:</source>
        <translation>样式表(&amp;T)：</translation>
    </message>
    <message>
        <source>Select Map Style Sheet</source>
        <translation>选择地图样式表</translation>
    </message>
    <message>
        <source>Map Style Sheet (*.mss)</source>
        <translation>地图样式表 (*.mss)</translation>
    </message>
    <message>
        <source>Symbol si&amp;ze:</source>
        <translation>符号大小(&amp;W)：</translation>
    </message>
    <message>
        <source>Smooth scaled p&amp;ictures</source>
        <translation>平滑缩放图片(&amp;I)</translation>
    </message>
    <message>
        <source>Pictures in maps look softer when they are enlarged, and take longer to draw.</source>
        <translation>地图中的图片放大时更平滑，但绘制更慢。</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>Show the &amp;sensor</source>
        <translation>显示传感器(&amp;S)</translation>
    </message>
    <message>
        <source>Show its na&amp;me</source>
        <translation>显示其名称(&amp;M)</translation>
    </message>
    <message>
        <source>Show its co&amp;verage</source>
        <translation>显示其覆盖范围(&amp;V)</translation>
    </message>
    <message>
        <source>Show the &amp;antenna line of a radar</source>
        <translation>显示雷达的天线扫描线(&amp;A)</translation>
    </message>
    <message>
        <source>Flash the &amp;north marker of a radar</source>
        <translation>雷达正北标记闪烁(&amp;N)</translation>
    </message>
    <message>
        <source>Short north marker</source>
        <translation>短正北标记</translation>
    </message>
    <message>
        <source>A tick at the rim of the coverage instead of a line from the site.</source>
        <translation>在覆盖范围边缘画短线，而不是从站址画线。</translation>
    </message>
    <message>
        <source>Sit&amp;e and coverage:</source>
        <translation>站址和覆盖范围(&amp;E)：</translation>
    </message>
    <message>
        <source>Sensor Colour</source>
        <translation>传感器颜色</translation>
    </message>
    <message>
        <source>Antenna &amp;line:</source>
        <translation>天线扫描线(&amp;L)：</translation>
    </message>
    <message>
        <source>Antenna Line Colour</source>
        <translation>天线扫描线颜色</translation>
    </message>
    <message>
        <source>North &amp;marker:</source>
        <translation>正北标记(&amp;J)：</translation>
    </message>
    <message>
        <source>North Marker Colour</source>
        <translation>正北标记颜色</translation>
    </message>
    <message>
        <source>Range rings</source>
        <translation>距离环</translation>
    </message>
    <message>
        <source>Show range &amp;rings</source>
        <translation>显示距离环(&amp;R)</translation>
    </message>
    <message>
        <source>N&amp;umber of rings:</source>
        <translation>环数(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Distance between rings:</source>
        <translation>环间距(&amp;D)：</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>颜色(&amp;C)：</translation>
    </message>
    <message>
        <source>Range Ring Colour</source>
        <translation>距离环颜色</translation>
    </message>
    <message>
        <source>Show their distances</source>
        <translation>显示距离数值</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方位参考</translation>
    </message>
    <message>
        <source>Show a compass rose</source>
        <translation>显示罗经圈</translation>
    </message>
    <message>
        <source>Show a scale &amp;bar</source>
        <translation>显示比例尺(&amp;B)</translation>
    </message>
    <message>
        <source>Show a &amp;key of symbols and weather colours</source>
        <translation>显示符号和气象颜色图例(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Text and rose:</source>
        <translation>文字和罗经圈(&amp;F)：</translation>
    </message>
    <message>
        <source>Orientation Colour</source>
        <translation>方位参考颜色</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>点迹</translation>
    </message>
    <message>
        <source>Show pl&amp;ots</source>
        <translation>显示点迹(&amp;O)</translation>
    </message>
    <message>
        <source>Every target report with a place, also those that no track is made of.</source>
        <translation>每个有位置的目标报告，包括未形成航迹的。</translation>
    </message>
    <message>
        <source>Time that a plot is seen:</source>
        <translation>点迹显示时间：</translation>
    </message>
    <message>
        <source>three revolutions</source>
        <translation>三圈</translation>
    </message>
    <message>
        <source>Plot colour:</source>
        <translation>点迹颜色：</translation>
    </message>
    <message>
        <source>Plot Colour</source>
        <translation>点迹颜色</translation>
    </message>
    <message>
        <source>The name of a file is needed.</source>
        <translation>需要文件名。</translation>
    </message>
    <message>
        <source>Draws the airspaces, routes and places of the map index under the traffic.</source>
        <translation>在交通目标之下绘制地图索引中的空域、航路和地点。</translation>
    </message>
    <message>
        <source>The list of the maps that are drawn; a new one is made where the file does not exist.</source>
        <translation>所绘制地图的列表；文件不存在时新建。</translation>
    </message>
    <message>
        <source>The colours, lines and fonts that maps are drawn with.</source>
        <translation>绘制地图所用的颜色、线条和字体。</translation>
    </message>
    <message>
        <source>How large the symbols of places are drawn.</source>
        <translation>地点符号的绘制大小。</translation>
    </message>
    <message>
        <source>Draws the sensor of the input where it stands, with all that is chosen below.</source>
        <translation>在其位置绘制输入的传感器及下面所选的内容。</translation>
    </message>
    <message>
        <source>Writes the sensor&apos;s name beside its site.</source>
        <translation>在站址旁显示传感器名称。</translation>
    </message>
    <message>
        <source>Draws a circle as far out as the sensor covers.</source>
        <translation>以圆表示传感器的覆盖距离。</translation>
    </message>
    <message>
        <source>Draws where the antenna points, by the sector messages that come in.</source>
        <translation>按收到的扇区报文绘制天线指向。</translation>
    </message>
    <message>
        <source>Draws a line to the north for a moment whenever the antenna passes it.</source>
        <translation>天线每次经过正北时短暂绘制一条指北线。</translation>
    </message>
    <message>
        <source>Colour of the sensor&apos;s symbol, its name and the rim of its coverage.</source>
        <translation>传感器符号、名称和覆盖边缘的颜色。</translation>
    </message>
    <message>
        <source>Colour of the line that turns with the antenna.</source>
        <translation>随天线旋转的线的颜色。</translation>
    </message>
    <message>
        <source>Colour of the line that flashes when the antenna passes the north.</source>
        <translation>天线过正北时闪现的线的颜色。</translation>
    </message>
    <message>
        <source>Draws circles of equal distance round the sensor or the centre chosen.</source>
        <translation>以传感器或所选中心绘制等距圆。</translation>
    </message>
    <message>
        <source>How many rings are drawn.</source>
        <translation>绘制的环数。</translation>
    </message>
    <message>
        <source>From the centre to the first ring, and from each ring to the next.</source>
        <translation>从中心到第一环，以及环与环之间的距离。</translation>
    </message>
    <message>
        <source>Colour of the rings.</source>
        <translation>距离环的颜色。</translation>
    </message>
    <message>
        <source>Writes the distance on each ring, on four bearings.</source>
        <translation>在四个方位标出每个环的距离。</translation>
    </message>
    <message>
        <source>Draws bearings round the rim of the view, which turn with it.</source>
        <translation>在视图边缘绘制随视图旋转的方位。</translation>
    </message>
    <message>
        <source>Draws how long some nautical miles are in the view.</source>
        <translation>绘制视图中若干海里的长度。</translation>
    </message>
    <message>
        <source>Draws what each symbol and colour that is in sight means.</source>
        <translation>绘制可见的各符号和颜色的含义。</translation>
    </message>
    <message>
        <source>Colour of ring distances, compass rose, scale bar and key.</source>
        <translation>距离环数值、罗经圈、比例尺和图例的颜色。</translation>
    </message>
    <message>
        <source>How long a plot takes to fade away; 0 stands for three revolutions of the antenna.</source>
        <translation>点迹消退所需时间；0 表示天线三圈。</translation>
    </message>
    <message>
        <source>Colour of the marks of plots.</source>
        <translation>点迹标记的颜色。</translation>
    </message>
</context>
<context>
    <name>MapConversion</name>
    <message>
        <source>The suffix of &quot;%1&quot; is that of no map format.</source>
        <translation>“%1”的后缀不属于任何地图格式。</translation>
    </message>
</context>
<context>
    <name>MapEditorCommands</name>
    <message>
        <source>Change Map Data</source>
        <translation>更改地图数据</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>添加组</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>删除组</translation>
    </message>
    <message>
        <source>Change Group</source>
        <translation>更改组</translation>
    </message>
    <message>
        <source>Add Element</source>
        <translation>添加元素</translation>
    </message>
    <message>
        <source>Delete Element</source>
        <translation>删除元素</translation>
    </message>
    <message>
        <source>Change Element</source>
        <translation>更改元素</translation>
    </message>
    <message>
        <source>Change Points</source>
        <translation>更改点</translation>
    </message>
    <message>
        <source>Move Point</source>
        <translation>移动点</translation>
    </message>
    <message>
        <source>Change Style</source>
        <translation>更改样式</translation>
    </message>
</context>
<context>
    <name>MapEditorDocument</name>
    <message>
        <source>Maps cannot be written in this format.</source>
        <translation>不能以此格式写入地图。</translation>
    </message>
    <message>
        <source>Cannot write backup file &quot;%1&quot;.</source>
        <translation>无法写入备份文件“%1”。</translation>
    </message>
    <message>
        <source>Name Image Files</source>
        <translation>命名图片文件</translation>
    </message>
    <message>
        <source>Move Group</source>
        <translation>移动组</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制一份</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>移动到组</translation>
    </message>
    <message>
        <source>Delete Points</source>
        <translation>删除点</translation>
    </message>
</context>
<context>
    <name>MapEditorElementPane</name>
    <message>
        <source>Select an element on the left, or add one.</source>
        <translation>在左侧选择元素或添加元素。</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Class:</source>
        <translation>类(&amp;C)：</translation>
    </message>
    <message>
        <source>Ca&amp;ption:</source>
        <translation>标注(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>类型(&amp;T)：</translation>
    </message>
    <message>
        <source>C&amp;oordinate:</source>
        <translation>坐标(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Image:</source>
        <translation>图片(&amp;I)：</translation>
    </message>
    <message>
        <source>Nort&amp;h-west:</source>
        <translation>西北(&amp;H)：</translation>
    </message>
    <message>
        <source>So&amp;uth-east:</source>
        <translation>东南(&amp;U)：</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>选择...</translation>
    </message>
    <message>
        <source>There is no picture yet.</source>
        <translation>尚无图片。</translation>
    </message>
    <message>
        <source>Choose Image</source>
        <translation>选择图片</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp *.gif);;All files (*)</source>
        <translation>图片 (*.png *.jpg *.jpeg *.bmp *.gif)；；所有文件 (*)</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2</source>
        <translation>无法读取图片“%1”：%2</translation>
    </message>
</context>
<context>
    <name>MapEditorLayer</name>
    <message>
        <source>Map editor</source>
        <translation>地图编辑器</translation>
    </message>
</context>
<context>
    <name>MapEditorMetaPane</name>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>A&amp;uthor:</source>
        <translation>作者(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Version:</source>
        <translation>版本(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>说明(&amp;D)：</translation>
    </message>
    <message>
        <source>Co&amp;mment:</source>
        <translation>备注(&amp;M)：</translation>
    </message>
</context>
<context>
    <name>MapEditorPlanTool</name>
    <message>
        <source>Draw</source>
        <translation>绘制</translation>
    </message>
</context>
<context>
    <name>MapEditorPointModel</name>
    <message>
        <source>Decimal Degrees</source>
        <translation>十进制度</translation>
    </message>
    <message>
        <source>Coordinate</source>
        <translation>坐标</translation>
    </message>
</context>
<context>
    <name>MapEditorPointPane</name>
    <message>
        <source>Insert Before</source>
        <translation>在前插入</translation>
    </message>
    <message>
        <source>Put a point before the current one</source>
        <translation>在当前点之前插入一点</translation>
    </message>
    <message>
        <source>Insert After</source>
        <translation>在后插入</translation>
    </message>
    <message>
        <source>Put a point behind the current one</source>
        <translation>在当前点之后插入一点</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Insert coordinates from the clipboard, one a line</source>
        <translation>从剪贴板插入坐标，每行一个</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>反转</translation>
    </message>
    <message>
        <source>Turn the order of the points round</source>
        <translation>反转点的顺序</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete the selected points</source>
        <translation>删除所选的点</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no coordinate; nothing was pasted.</source>
        <translation>“%1”不是坐标；未粘贴任何内容。</translation>
    </message>
    <message>
        <source>There are no coordinates to paste.</source>
        <translation>没有可粘贴的坐标。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
</context>
<context>
    <name>MapEditorProgress</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MapEditorStylePane</name>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Line Colour</source>
        <translation>线条颜色</translation>
    </message>
    <message>
        <source>Fill Colour</source>
        <translation>填充颜色</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>实线</translation>
    </message>
    <message>
        <source>dashed</source>
        <translation>虚线</translation>
    </message>
    <message>
        <source>dotted</source>
        <translation>点线</translation>
    </message>
    <message>
        <source>dash, dot</source>
        <translation>点划线</translation>
    </message>
    <message>
        <source>dash, dot, dot</source>
        <translation>双点划线</translation>
    </message>
    <message>
        <source>cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Symbols and labels:</source>
        <translation>符号和标注(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Line colour:</source>
        <translation>线条颜色(&amp;L)：</translation>
    </message>
    <message>
        <source>Line st&amp;yle:</source>
        <translation>线型(&amp;Y)：</translation>
    </message>
    <message>
        <source>Line &amp;width:</source>
        <translation>线宽(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Fill colour:</source>
        <translation>填充颜色(&amp;F)：</translation>
    </message>
    <message>
        <source>Fill &amp;pattern:</source>
        <translation>填充图案(&amp;P)：</translation>
    </message>
    <message>
        <source>F&amp;ont:</source>
        <translation>字体(&amp;O)：</translation>
    </message>
    <message>
        <source>Font si&amp;ze:</source>
        <translation>字号(&amp;Z)：</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>新建...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>New Style Class</source>
        <translation>新建样式类</translation>
    </message>
    <message>
        <source>Name of the class:</source>
        <translation>类名称：</translation>
    </message>
    <message>
        <source>Style classes</source>
        <translation>样式类</translation>
    </message>
</context>
<context>
    <name>MapEditorStyles</name>
    <message>
        <source>The style sheet has no file name.</source>
        <translation>样式表没有文件名。</translation>
    </message>
</context>
<context>
    <name>MapEditorTreeModel</name>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>无名称</translation>
    </message>
    <message>
        <source>1 point</source>
        <translation>1 个点</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 个点</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
</context>
<context>
    <name>MapEditorTreePane</name>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Nothing has this text.</source>
        <translation>没有内容包含此文字。</translation>
    </message>
    <message>
        <source>Open a map, or add a group.</source>
        <translation>打开地图或添加组。</translation>
    </message>
    <message>
        <source>Elements of the map</source>
        <translation>地图元素</translation>
    </message>
</context>
<context>
    <name>MapEditorWindow</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Open Style Sheet...</source>
        <translation>打开样式表...</translation>
    </message>
    <message>
        <source>Save Style Sheet As...</source>
        <translation>样式表另存为...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>复制一份(&amp;D)</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>删除(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Move to Group</source>
        <translation>移动到组(&amp;M)</translation>
    </message>
    <message>
        <source>Move Group &amp;Up</source>
        <translation>上移组(&amp;U)</translation>
    </message>
    <message>
        <source>Move Group Dow&amp;n</source>
        <translation>下移组(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>组(&amp;G)</translation>
    </message>
    <message>
        <source>+ %1</source>
        <translation>+ %1</translation>
    </message>
    <message>
        <source>&amp;Plan View</source>
        <translation>平面视图(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>绘制(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Go There</source>
        <translation>转到该处(&amp;G)</translation>
    </message>
    <message>
        <source>There is no plan view</source>
        <translation>没有平面视图</translation>
    </message>
    <message>
        <source>Select an element first</source>
        <translation>请先选择元素</translation>
    </message>
    <message>
        <source>Set points by clicks on the plan view; Enter ends, Escape cancels</source>
        <translation>在平面视图上单击设置点；Enter 结束，Esc 取消</translation>
    </message>
    <message>
        <source>Bring the element, or its current point, to the centre of the plan view</source>
        <translation>将元素或其当前点置于平面视图中心</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>新地图</translation>
    </message>
    <message>
        <source>%1[*] - Static Map Editor</source>
        <translation>%1[*] - 静态地图编辑器</translation>
    </message>
    <message>
        <source>Click on the plan view to set points. Enter or a double-click ends, Escape cancels.</source>
        <translation>在平面视图上单击设置点。按 Enter 或双击结束，按 Esc 取消。</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>新组</translation>
    </message>
    <message>
        <source>Maps (*.xml *.map *.mapx);;All files (*)</source>
        <translation>地图 (*.xml *.map *.mapx)；；所有文件 (*)</translation>
    </message>
    <message>
        <source>Map Style Sheet (*.mss)</source>
        <translation>地图样式表 (*.mss)</translation>
    </message>
    <message>
        <source>Open Static Map</source>
        <translation>打开静态地图</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>正在读取 %1</translation>
    </message>
    <message>
        <source>The map could not be opened.</source>
        <translation>无法打开地图。</translation>
    </message>
    <message>
        <source>The style sheet could not be opened.</source>
        <translation>无法打开样式表。</translation>
    </message>
    <message>
        <source>Select Map Style Sheet</source>
        <translation>选择地图样式表</translation>
    </message>
    <message>
        <source>Save Static Map</source>
        <translation>保存静态地图</translation>
    </message>
    <message>
        <source>XML map (*.xml);;Binary map (*.map)</source>
        <translation>XML 地图 (*.xml)；；二进制地图 (*.map)</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>正在保存 %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>The map could not be saved.</source>
        <translation>无法保存地图。</translation>
    </message>
    <message>
        <source>Save Style Sheet</source>
        <translation>保存样式表</translation>
    </message>
    <message>
        <source>The style sheet could not be saved.</source>
        <translation>无法保存样式表。</translation>
    </message>
    <message>
        <source>Static Map Editor</source>
        <translation>静态地图编辑器</translation>
    </message>
    <message>
        <source>The map has been changed.</source>
        <translation>地图已更改。</translation>
    </message>
    <message>
        <source>The styles have been changed.</source>
        <translation>样式已更改。</translation>
    </message>
    <message>
        <source>Save the changes?</source>
        <translation>保存更改吗？</translation>
    </message>
</context>
<context>
    <name>MapFile</name>
    <message>
        <source>Map file format mismatch.</source>
        <translation>地图文件格式不匹配。</translation>
    </message>
    <message>
        <source>Invalid map file open mode.</source>
        <translation>地图文件打开方式无效。</translation>
    </message>
    <message>
        <source>Map file &quot;%1&quot; is not writable.</source>
        <translation>地图文件“%1”不可写。</translation>
    </message>
    <message>
        <source>Map file &quot;%1&quot; does not exist or is not readable.</source>
        <translation>地图文件“%1”不存在或不可读。</translation>
    </message>
    <message>
        <source>Cannot open map file &quot;%1&quot;: %2.</source>
        <translation>无法打开地图文件“%1”：%2。</translation>
    </message>
    <message>
        <source>Cannot open map file &quot;%1&quot;.</source>
        <translation>无法打开地图文件“%1”。</translation>
    </message>
    <message>
        <source>Cannot write map file &quot;%1&quot;: %2.</source>
        <translation>无法写入地图文件“%1”：%2。</translation>
    </message>
    <message>
        <source>Map file is not open for reading.</source>
        <translation>地图文件未以读取方式打开。</translation>
    </message>
    <message>
        <source>Map file &quot;%1&quot; is too large.</source>
        <translation>地图文件“%1”太大。</translation>
    </message>
    <message>
        <source>Map file is not open for writing.</source>
        <translation>地图文件未以写入方式打开。</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>读取已取消。</translation>
    </message>
    <message>
        <source>Writing was cancelled.</source>
        <translation>写入已取消。</translation>
    </message>
</context>
<context>
    <name>MapImport</name>
    <message>
        <source>The import was cancelled.</source>
        <translation>导入已取消。</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot;: %2</source>
        <translation>图层“%1”：%2</translation>
    </message>
    <message>
        <source>There is no reference system EPSG:%1.</source>
        <translation>没有参考系 EPSG:%1。</translation>
    </message>
    <message>
        <source>The reference system of the coordinates cannot be used: %1</source>
        <translation>坐标的参考系无法使用：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) without a usable shape were left out.</source>
        <translation>
            <numerusform>%n 个没有可用形状的要素被忽略。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) outside of the globe were left out. Are the coordinates not degrees, and the reference system not stated?</source>
        <translation>
            <numerusform>%n 个位于地球之外的要素被忽略。坐标是否不是度，且未说明参考系？</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no layer &quot;%1&quot;; the file has: %2.</source>
        <translation>没有图层“%1”；文件中有：%2。</translation>
    </message>
    <message>
        <source>The file has no layers.</source>
        <translation>文件没有图层。</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <source>it is not GeoJSON, KML, Shapefile or DXF.</source>
        <translation>不是 GeoJSON、KML、Shapefile 或 DXF。</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>导入自 %1</translation>
    </message>
    <message>
        <source>This program was built without GDAL, which reads GeoJSON, KML, Shapefile and DXF. Install its development package (Debian and Ubuntu: libgdal-dev) and build again.</source>
        <translation>本程序构建时未包含 GDAL（用于读取 GeoJSON、KML、Shapefile 和 DXF）。请安装其开发包（Debian 和 Ubuntu:libgdal-dev）并重新构建。</translation>
    </message>
    <message>
        <source>Geographic files (%1)</source>
        <translation>地理文件 (%1)</translation>
    </message>
    <message>
        <source>File &quot;%1&quot; does not exist or is not readable.</source>
        <translation>文件“%1”不存在或不可读。</translation>
    </message>
    <message>
        <source>Nothing in &quot;%1&quot; can be shown on a map.</source>
        <translation>“%1”中没有可在地图上显示的内容。</translation>
    </message>
</context>
<context>
    <name>MapImportWindow</name>
    <message>
        <source>Names with commas between them; the first that a feature has counts.</source>
        <translation>以逗号分隔的名称；取要素具有的第一个。</translation>
    </message>
    <message>
        <source>as the file says</source>
        <translation>按文件所述</translation>
    </message>
    <message>
        <source>Import %1</source>
        <translation>导入 %1</translation>
    </message>
    <message>
        <source>Import To</source>
        <translation>导入到</translation>
    </message>
    <message>
        <source>Maps (*.map *.xml)</source>
        <translation>地图 (*.map *.xml)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Names with commas between them</source>
        <translation>以逗号分隔的名称</translation>
    </message>
    <message>
        <source>Map &amp;file:</source>
        <translation>地图文件(&amp;F)：</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>&amp;Class:</source>
        <translation>类(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;Name from property:</source>
        <translation>名称取自属性(&amp;N)：</translation>
    </message>
    <message>
        <source>Ca&amp;ption from property:</source>
        <translation>标注取自属性(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Symbol of points:</source>
        <translation>点的符号(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Layers:</source>
        <translation>图层(&amp;L)：</translation>
    </message>
    <message>
        <source>Points become s&amp;ymbols</source>
        <translation>点转为符号(&amp;Y)</translation>
    </message>
    <message>
        <source>Points and airspaces get la&amp;bels</source>
        <translation>点和空域加标注(&amp;B)</translation>
    </message>
    <message>
        <source>Fill &amp;areas</source>
        <translation>填充区域(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Recognise airspaces</source>
        <translation>识别空域(&amp;R)</translation>
    </message>
    <message>
        <source>Reference system of the coordinates, for files such as drawings that name none</source>
        <translation>坐标参考系，用于未注明参考系的文件（如图纸）</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>keep all points</source>
        <translation>保留所有点</translation>
    </message>
    <message>
        <source>Lines and areas are simplified as long as they move by no more than this</source>
        <translation>在位移不超过此值的前提下简化线和区域</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>&amp;EPSG code:</source>
        <translation>EPSG 代码(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>容差(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>The name of a file is needed.</source>
        <translation>需要文件名。</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message>
        <source>The name has to end in &quot;.map&quot; or &quot;.xml&quot;.</source>
        <translation>名称必须以“.map”或“.xml”结尾。</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot;?</source>
        <translation>替换“%1”？</translation>
    </message>
</context>
<context>
    <name>MapIndex</name>
    <message>
        <source>Cannot open map index file &quot;%1&quot;: %2.</source>
        <translation>无法打开地图索引文件“%1”：%2。</translation>
    </message>
    <message>
        <source>Malformed map index file &quot;%1&quot;: %2.</source>
        <translation>地图索引文件“%1”格式错误：%2。</translation>
    </message>
    <message>
        <source>Cannot write map index file &quot;%1&quot;: %2.</source>
        <translation>无法写入地图索引文件“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>MapLibrary</name>
    <message>
        <source>Loading was cancelled.</source>
        <translation>加载已取消。</translation>
    </message>
    <message>
        <source>Failed to load map %1: %2</source>
        <translation>加载地图 %1 失败：%2</translation>
    </message>
    <message>
        <source>Loading stylesheet: %1</source>
        <translation>正在加载样式表：%1</translation>
    </message>
    <message>
        <source>Loading stylesheet: NOT FOUND</source>
        <translation>正在加载样式表：未找到</translation>
    </message>
    <message>
        <source>Failed to load style sheet:</source>
        <translation>加载样式表失败：</translation>
    </message>
</context>
<context>
    <name>MapLoad</name>
    <message>
        <source>The format of the map file is unknown.</source>
        <translation>地图文件格式未知。</translation>
    </message>
</context>
<context>
    <name>MapStylePreview</name>
    <message>
        <source>LABEL</source>
        <translation>标注</translation>
    </message>
</context>
<context>
    <name>MapStyleSheet</name>
    <message>
        <source>This is not a valid map style sheet.</source>
        <translation>这不是有效的地图样式表。</translation>
    </message>
    <message>
        <source>Style sheet &quot;%1&quot; does not exist or is not readable.</source>
        <translation>样式表“%1”不存在或不可读。</translation>
    </message>
    <message>
        <source>Cannot create directory &quot;%1&quot;.</source>
        <translation>无法创建目录“%1”。</translation>
    </message>
    <message>
        <source>Cannot write backup file &quot;%1&quot;.</source>
        <translation>无法写入备份文件“%1”。</translation>
    </message>
</context>
<context>
    <name>MapWindows</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>MapXmlReader</name>
    <message>
        <source>An element has too many attributes.</source>
        <translation>某元素的属性过多。</translation>
    </message>
    <message>
        <source>Elements are nested too deeply.</source>
        <translation>元素嵌套过深。</translation>
    </message>
    <message>
        <source>Definitions of entities are not read.</source>
        <translation>不读取实体定义。</translation>
    </message>
</context>
<context>
    <name>MbTilesReader</name>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>This is not an MBTiles file (%1).</source>
        <translation>这不是 MBTiles 文件（%1）。</translation>
    </message>
    <message>
        <source>The file has no tiles.</source>
        <translation>文件没有瓦片。</translation>
    </message>
    <message>
        <source>The file holds vector tiles, which cannot be shown. It must hold pictures (PNG or JPEG).</source>
        <translation>文件包含无法显示的矢量瓦片。文件必须包含图片（PNG 或 JPEG）。</translation>
    </message>
    <message>
        <source>The tiles of the file are not pictures (PNG or JPEG).</source>
        <translation>文件中的瓦片不是图片（PNG 或 JPEG）。</translation>
    </message>
    <message>
        <source>The tiles are %1 pictures, which need a plugin of Qt that is not installed.</source>
        <translation>瓦片为 %1 图片，需要尚未安装的 Qt 插件。</translation>
    </message>
</context>
<context>
    <name>MbTilesWriter</name>
    <message>
        <source>Another program is writing the file.</source>
        <translation>另一个程序正在写入该文件。</translation>
    </message>
    <message>
        <source>The folder cannot be written to.</source>
        <translation>无法写入该文件夹。</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>无法写入该文件。</translation>
    </message>
    <message>
        <source>A tile is not a picture.</source>
        <translation>某瓦片不是图片。</translation>
    </message>
    <message>
        <source>There are no tiles to write.</source>
        <translation>没有可写入的瓦片。</translation>
    </message>
</context>
<context>
    <name>MessageRouter</name>
    <message>
        <source>Decoded ASTERIX data block reports zero size, the rest of the message is dropped.</source>
        <translation>解码的 ASTERIX 数据块大小为零，丢弃报文其余部分。</translation>
    </message>
    <message>
        <source>ASTERIX data block with SAC/SIC %1/%2 does not match the configured sensor SAC/SIC %3/%4, dropped.</source>
        <translation>SAC/SIC 为 %1/%2 的 ASTERIX 数据块与所配置传感器的 SAC/SIC %3/%4 不符，已丢弃。</translation>
    </message>
    <message>
        <source>Unsupported ASTERIX catetory received: %1</source>
        <translation>收到不支持的 ASTERIX 类别：%1</translation>
    </message>
    <message>
        <source>Failed to extract Mode-S encapsulation.</source>
        <translation>提取 S 模式封装失败。</translation>
    </message>
    <message>
        <source>Failed to decode Mode-S message.</source>
        <translation>S 模式报文解码失败。</translation>
    </message>
    <message>
        <source>Failed to decode Alenia SIR-M message (%1 bytes).</source>
        <translation>Alenia SIR-M 报文解码失败（%1 字节）。</translation>
    </message>
    <message>
        <source>Failed to decode Alenia SIR-M message (%1 bytes), further failures are logged as debug.</source>
        <translation>Alenia SIR-M 报文解码失败（%1 字节），后续失败以调试级别记录。</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>MlatTracker</name>
    <message>
        <source>MLAT Tracker: CAT020 message has neither valid track number (I020/161) nor valid Mode-S address (I020/220), ignore.</source>
        <translation>MLAT 跟踪器：CAT020 报文既无有效航迹号（I020/161）也无有效 S 模式地址（I020/220），忽略。</translation>
    </message>
    <message>
        <source>MLAT Tracker: CAT010 message has neither valid track number (I010/161) nor valid Mode-S address (I010/220), ignore.</source>
        <translation>MLAT 跟踪器：CAT010 报文既无有效航迹号（I010/161）也无有效 S 模式地址（I010/220），忽略。</translation>
    </message>
    <message>
        <source>MLAT Tracker: the vertical trends (I020/170) of SAC/SIC %1/%2 contradict its levels, which changed the other way by %3 ft; the trends shown may be wrong.</source>
        <translation>MLAT 跟踪器：SAC/SIC %1/%2 的垂直趋势（I020/170）与其高度相矛盾，高度反向变化了 %3 ft；所示趋势可能有误。</translation>
    </message>
</context>
<context>
    <name>OctetSource</name>
    <message>
        <source>Reading was cancelled.</source>
        <translation>读取已取消。</translation>
    </message>
</context>
<context>
    <name>OctetView</name>
    <message>
        <source>Octets of the report</source>
        <translation>报告的字节</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>Set...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>更改...</translation>
    </message>
</context>
<context>
    <name>PasswordWindow</name>
    <message>
        <source>Lock Settings</source>
        <translation>锁定设置</translation>
    </message>
    <message>
        <source>Without the password nobody changes settings, sensors, maps or layouts here. The scope is worked with as before, and what is switched on it holds until the program ends.</source>
        <translation>没有密码者不能在此更改设置、传感器、地图或布局。显示区照常使用，其上的开关在程序结束前有效。</translation>
    </message>
    <message>
        <source>&amp;New password:</source>
        <translation>新密码(&amp;N)：</translation>
    </message>
    <message>
        <source>At least %1 characters.</source>
        <translation>至少 %1 个字符。</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>再次输入(&amp;A)：</translation>
    </message>
    <message>
        <source>The same once more, against slips.</source>
        <translation>再输入一次，以防输错。</translation>
    </message>
    <message>
        <source>&amp;Remove Password</source>
        <translation>删除密码(&amp;R)</translation>
    </message>
    <message>
        <source>The two are not the same.</source>
        <translation>两次输入不一致。</translation>
    </message>
</context>
<context>
    <name>PcapWriter</name>
    <message>
        <source>A payload of %1 octets does not fit into a datagram.</source>
        <translation>%1 字节的载荷放不进一个数据报。</translation>
    </message>
    <message>
        <source>The time stamp cannot be stored.</source>
        <translation>无法保存时间戳。</translation>
    </message>
</context>
<context>
    <name>PlanLayers</name>
    <message>
        <source>Maps</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>瓦片</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>气象</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>点迹</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>距离环</translation>
    </message>
    <message>
        <source>Compass Rose</source>
        <translation>罗经圈</translation>
    </message>
    <message>
        <source>Scale Bar</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>图例</translation>
    </message>
</context>
<context>
    <name>PlanViewWindow</name>
    <message>
        <source>Plan View %1 - %2</source>
        <translation>平面视图 %1 - %2</translation>
    </message>
    <message>
        <source>Plan View %1</source>
        <translation>平面视图 %1</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>Rotate North Up</source>
        <translation>旋转至正北向上</translation>
    </message>
    <message>
        <source>View of the Main Window</source>
        <translation>主窗口的视图</translation>
    </message>
    <message>
        <source>Follow Selected Track</source>
        <translation>跟随所选航迹</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标牌</translation>
    </message>
    <message>
        <source>Position under the pointer</source>
        <translation>指针处位置</translation>
    </message>
    <message>
        <source>Scale, metres per pixel</source>
        <translation>比例，米/像素</translation>
    </message>
    <message>
        <source>SCL %1</source>
        <translation>比例 %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟随</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Reset Label</source>
        <translation>复位标牌</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>解释</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>PlotSwitch</name>
    <message>
        <source>Plots are shown because %1 brings target reports but no tracks (Map, Toggle Plots).</source>
        <translation>因为 %1 提供目标报告而没有航迹，所以显示点迹（地图 → 开/关点迹）。</translation>
    </message>
</context>
<context>
    <name>ProbeText</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>%1 octets/s</source>
        <translation>%1 字节/s</translation>
    </message>
    <message>
        <source>%1 kB/s</source>
        <translation>%1 kB/s</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/s</translation>
    </message>
    <message>
        <source>%1 datagrams/s</source>
        <translation>%1 数据报/s</translation>
    </message>
    <message>
        <source>%1 messages/s</source>
        <translation>%1 报文/s</translation>
    </message>
    <message>
        <source>with track numbers</source>
        <translation>有航迹号</translation>
    </message>
    <message>
        <source>with aircraft addresses, no track numbers</source>
        <translation>有航空器地址，无航迹号</translation>
    </message>
    <message>
        <source>no track numbers</source>
        <translation>无航迹号</translation>
    </message>
    <message>
        <source>%1 messages a second</source>
        <translation>每秒 %1 条报文</translation>
    </message>
    <message>
        <source>no reports of targets</source>
        <translation>无目标报告</translation>
    </message>
    <message>
        <source>%1 plots a second</source>
        <translation>每秒 %1 个点迹</translation>
    </message>
    <message>
        <source>%1 reports a second</source>
        <translation>每秒 %1 个报告</translation>
    </message>
    <message>
        <source>no positions</source>
        <translation>无位置</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1，来自 %2</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另外 %1 个</translation>
    </message>
    <message>
        <source>%1 sources: %2</source>
        <translation>%1 个数据源：%2</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>每秒 %1 帧</translation>
    </message>
    <message>
        <source>%1 aircraft with extended squitters</source>
        <translation>%1 架有扩展间歇信号的航空器</translation>
    </message>
    <message>
        <source>%1 radar %2</source>
        <translation>%1 雷达 %2</translation>
    </message>
    <message>
        <source>%1 track reports a second</source>
        <translation>每秒 %1 个航迹报告</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1，封装于 %2</translation>
    </message>
    <message>
        <source>Data arrive on %1.</source>
        <translation>%1 上有数据到达。</translation>
    </message>
    <message>
        <source>Data arrive on %1, but they are no ASTERIX, Mode S or SIR-M data; they begin with %2.</source>
        <translation>%1 上有数据到达，但不是 ASTERIX、S 模式或 SIR-M 数据；它们以 %2 开头。</translation>
    </message>
    <message>
        <source>Listening on %1. Nothing has arrived yet.</source>
        <translation>正在监听 %1。尚未收到数据。</translation>
    </message>
    <message>
        <source>Nothing arrives on %1, for %2 s now.</source>
        <translation>%1 上已有 %2 s 没有收到数据。</translation>
    </message>
    <message>
        <source>The interface %1 is switched off.</source>
        <translation>接口 %1 已关闭。</translation>
    </message>
    <message>
        <source>The interface %1 has no link: check its cable.</source>
        <translation>接口 %1 没有链路：请检查网线。</translation>
    </message>
    <message>
        <source>Is the sender running, and does it send to the group %1 and port %2?</source>
        <translation>发送方是否在运行，并且发送到组 %1 和端口 %2?</translation>
    </message>
    <message>
        <source>Is the sender on the network of the interface %1?</source>
        <translation>发送方是否在接口 %1 所在的网络上？</translation>
    </message>
    <message>
        <source>Choose the interface that the sender&apos;s network is plugged into; the system has chosen one by itself.</source>
        <translation>请选择连接发送方网络的接口；目前由系统自行选择。</translation>
    </message>
    <message>
        <source>Does the firewall of this machine let UDP port %1 in?</source>
        <translation>本机防火墙是否允许 UDP 端口 %1?</translation>
    </message>
    <message>
        <source>Do the switches on the way pass the group on (IGMP)?</source>
        <translation>途中的交换机是否转发该组（IGMP）?</translation>
    </message>
    <message>
        <source>this machine</source>
        <translation>本机</translation>
    </message>
    <message>
        <source>this machine, %1,</source>
        <translation>本机 %1</translation>
    </message>
    <message>
        <source>Is the sender running, and does it send to %1 and port %2?</source>
        <translation>发送方是否在运行，并且发送到 %1 和端口 %2?</translation>
    </message>
    <message>
        <source>Is it multicast? Then tick Multicast and enter the group.</source>
        <translation>是否为组播？若是，请勾选“组播”并输入组地址。</translation>
    </message>
    <message>
        <source>Is the network cable plugged in?</source>
        <translation>网线是否已插好？</translation>
    </message>
    <message>
        <source>Is the line plugged in at both ends, and is the sender running?</source>
        <translation>线路两端是否已插好，发送方是否在运行？</translation>
    </message>
    <message>
        <source>Is %1 the right device?</source>
        <translation>%1 是否为正确的设备？</translation>
    </message>
    <message>
        <source>Does the line need a crossed cable (null modem)?</source>
        <translation>线路是否需要交叉线（零调制解调器）?</translation>
    </message>
    <message>
        <source>Check baud rate, data bits and parity: with wrong ones the octets arrive garbled.</source>
        <translation>请检查波特率、数据位和校验：设置错误时收到的字节会混乱。</translation>
    </message>
    <message>
        <source>Does something else send to this port?</source>
        <translation>是否有其他程序发送到此端口？</translation>
    </message>
    <message>
        <source>Are the data encrypted, or in another format?</source>
        <translation>数据是否加密，或为其他格式？</translation>
    </message>
    <message>
        <source>polar</source>
        <translation>极坐标</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>直角坐标</translation>
    </message>
    <message>
        <source>WGS-84</source>
        <translation>WGS-84</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 个位置</translation>
    </message>
    <message>
        <source>no table for this category</source>
        <translation>没有该类别的定义表</translation>
    </message>
    <message>
        <source>cannot be decoded</source>
        <translation>无法解码</translation>
    </message>
    <message>
        <source>turning once in %1 s</source>
        <translation>每圈 %1 s</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>接收机</translation>
    </message>
    <message>
        <source>Radar %1</source>
        <translation>雷达 %1</translation>
    </message>
    <message>
        <source>%1 /s</source>
        <translation>%1 /s</translation>
    </message>
    <message>
        <source>%1 aircraft, %2 positions</source>
        <translation>%1 架航空器，%2 个位置</translation>
    </message>
    <message>
        <source>%1 plots, %2 tracks</source>
        <translation>%1 个点迹，%2 条航迹</translation>
    </message>
    <message>
        <source>Opening %1 ...</source>
        <translation>正在打开 %1 ...</translation>
    </message>
    <message>
        <source>The input is paused.</source>
        <translation>输入已暂停。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Nothing for %1 s now; before that: %2.</source>
        <translation>已有 %1 s 没有数据；之前：%2。</translation>
    </message>
    <message>
        <source>To be shown with the %1, as the sensor &quot;%2&quot; of the sensor file.</source>
        <translation>将用 %1 显示，采用传感器文件中的传感器“%2”。</translation>
    </message>
    <message>
        <source>To be shown with the %1, as %2.</source>
        <translation>将用 %1 显示，作为 %2。</translation>
    </message>
    <message>
        <source>Location: %1.</source>
        <translation>位置：%1。</translation>
    </message>
    <message>
        <source>Where it stands is not told by the data: enter its location.</source>
        <translation>数据未说明其位置：请输入位置。</translation>
    </message>
    <message>
        <source>The time of one turn is not found out yet: listen for some turns more, or enter it.</source>
        <translation>尚未得出旋转周期：请再监听几圈，或直接输入。</translation>
    </message>
    <message>
        <source>The interface %1 is not there.</source>
        <translation>接口 %1 不存在。</translation>
    </message>
</context>
<context>
    <name>ProbeView</name>
    <message>
        <source>What arrives, by source</source>
        <translation>按数据源列出收到的内容</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Edition</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>升降率</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>&amp;Use What Was Found</source>
        <translation>采用识别结果(&amp;U)</translation>
    </message>
    <message>
        <source>Fills the pages Processor and Sensor; nothing is applied before you say so.</source>
        <translation>填写“处理器”和“传感器”页；在您确认之前不会应用。</translation>
    </message>
</context>
<context>
    <name>ProcessorConfigPage</name>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message>
        <source>&amp;Processor:</source>
        <translation>处理器(&amp;P)：</translation>
    </message>
    <message>
        <source>What the messages of the input are: it must fit what the sensor sends.</source>
        <translation>输入报文的类型：必须与传感器发送的内容一致。</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>格式(&amp;F)：</translation>
    </message>
    <message>
        <source>What the data blocks are wrapped in on the line.</source>
        <translation>数据块在线路上的封装方式。</translation>
    </message>
    <message>
        <source>U&amp;ser application profile:</source>
        <translation>用户应用规范(&amp;S)：</translation>
    </message>
    <message>
        <source>The edition of the category that the sensor encodes. Automatic finds it out block by block.</source>
        <translation>传感器编码所用的类别版本。“自动”会逐块判断。</translation>
    </message>
    <message>
        <source>&amp;Drop messages with another SAC/SIC than the sensor&apos;s</source>
        <translation>丢弃 SAC/SIC 与传感器不同的报文(&amp;D)</translation>
    </message>
    <message>
        <source>Keeps the reports of other sensors on the same line off the picture.</source>
        <translation>不显示同一线路上其他传感器的报告。</translation>
    </message>
    <message>
        <source>Ignore &amp;WGS-84 positions</source>
        <translation>忽略 WGS-84 位置(&amp;W)</translation>
    </message>
    <message>
        <source>For MLAT and SDPS sensors: places tracks by their Cartesian position.</source>
        <translation>用于 MLAT 和 SDPS 传感器：按直角坐标位置显示航迹。</translation>
    </message>
    <message>
        <source>Ignore &amp;Cartesian positions</source>
        <translation>忽略直角坐标位置(&amp;C)</translation>
    </message>
    <message>
        <source>For MLAT and SDPS sensors: places tracks by their WGS-84 position.</source>
        <translation>用于 MLAT 和 SDPS 传感器：按 WGS-84 位置显示航迹。</translation>
    </message>
    <message>
        <source>Correct the &amp;longitude wrap</source>
        <translation>修正经度溢出(&amp;L)</translation>
    </message>
    <message>
        <source>For SDPS sensors that let longitudes overflow: brings them back to -180° to 180°.</source>
        <translation>用于经度会溢出的 SDPS 传感器：将其还原到 -180° 至 180°。</translation>
    </message>
    <message>
        <source>&amp;Encapsulation:</source>
        <translation>封装(&amp;E)：</translation>
    </message>
    <message>
        <source>How the receiver hands out the frames.</source>
        <translation>接收机输出帧的方式。</translation>
    </message>
    <message>
        <source>&amp;Ignore the receiver&apos;s time stamps</source>
        <translation>忽略接收机时间戳(&amp;I)</translation>
    </message>
    <message>
        <source>Dates a frame when it arrives. Right unless the receiver&apos;s clock is better than the line.</source>
        <translation>以帧的到达时间为准。除非接收机时钟优于线路，否则应选用。</translation>
    </message>
    <message>
        <source>Forget a silent &amp;target after:</source>
        <translation>静默目标保留时间(&amp;T)：</translation>
    </message>
    <message>
        <source>How long the decoder keeps what it knows of an aircraft that is no longer heard.</source>
        <translation>解码器对不再收到的航空器保留信息的时间。</translation>
    </message>
    <message>
        <source>Check &amp;barometric altitudes for jumps</source>
        <translation>检查气压高度跳变(&amp;B)</translation>
    </message>
    <message>
        <source>Drops altitudes that an aircraft cannot have reached since the last one.</source>
        <translation>丢弃航空器自上次以来不可能达到的高度。</translation>
    </message>
    <message>
        <source>Compare &amp;with altitudes up to:</source>
        <translation>比较的高度时龄上限(&amp;W)：</translation>
    </message>
    <message>
        <source>The age up to which the last altitude is compared; an older one is replaced whatever comes.</source>
        <translation>与上一高度比较的最大时龄；更旧的高度一律被替换。</translation>
    </message>
    <message>
        <source>Largest &amp;change:</source>
        <translation>最大变化(&amp;C)：</translation>
    </message>
    <message>
        <source>An altitude that differs by more from the last one is dropped.</source>
        <translation>与上一高度相差超过此值的高度被丢弃。</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>格式(&amp;O)：</translation>
    </message>
    <message>
        <source>What the radar&apos;s messages are wrapped in on the line.</source>
        <translation>雷达报文在线路上的封装方式。</translation>
    </message>
</context>
<context>
    <name>ProfileWindow</name>
    <message>
        <source>New Window With Profile</source>
        <translation>用配置文件打开新窗口</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>For example approach</source>
        <translation>例如 approach</translation>
    </message>
    <message>
        <source>A profile has its own settings, layouts and windows. Choose one, or name a new one.</source>
        <translation>配置文件有独立的设置、布局和窗口。请选择一个，或为新的命名。</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>配置文件(&amp;P)：</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>打开窗口(&amp;W)</translation>
    </message>
    <message>
        <source>A name has letters A to Z, digits and the signs - _ . only.</source>
        <translation>名称只能包含字母 A 到 Z、数字以及符号 - _ .</translation>
    </message>
    <message>
        <source>This window has that profile.</source>
        <translation>此窗口正使用该配置文件。</translation>
    </message>
</context>
<context>
    <name>RadarTracker</name>
    <message>
        <source>Radar Tracker: CAT001 message has no valid track number (I001/161), ignore.</source>
        <translation>雷达跟踪器：CAT001 报文没有有效航迹号（I001/161），忽略。</translation>
    </message>
    <message>
        <source>Radar Tracker: CAT048 message has neither valid track number (I048/161) nor valid Mode-S address (I048/220), ignore.</source>
        <translation>雷达跟踪器：CAT048 报文既无有效航迹号（I048/161）也无有效 S 模式地址（I048/220），忽略。</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar north is not synchronized.</source>
        <translation>Alenia SIR-M 跟踪器：雷达正北未同步。</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar north is synchronized.</source>
        <translation>Alenia SIR-M 跟踪器：雷达正北已同步。</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar clock is not synchronized.</source>
        <translation>Alenia SIR-M 跟踪器：雷达时钟未同步。</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar clock is synchronized.</source>
        <translation>Alenia SIR-M 跟踪器：雷达时钟已同步。</translation>
    </message>
</context>
<context>
    <name>RangeRingWindow</name>
    <message>
        <source>Range Rings</source>
        <translation>距离环</translation>
    </message>
    <message>
        <source>&amp;Centre:</source>
        <translation>中心(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;Number of rings:</source>
        <translation>环数(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Distance between rings:</source>
        <translation>环间距(&amp;D)：</translation>
    </message>
</context>
<context>
    <name>RawBlockFraming</name>
    <message>
        <source>The file ends within a data block&apos;s header.</source>
        <translation>文件在数据块头内结束。</translation>
    </message>
    <message>
        <source>A data block&apos;s length field says %1.</source>
        <translation>某数据块的长度字段为 %1。</translation>
    </message>
    <message>
        <source>The file ends within a data block of %1 octets.</source>
        <translation>文件在 %1 字节的数据块内结束。</translation>
    </message>
</context>
<context>
    <name>RawFilterBar</name>
    <message>
        <source>All categories</source>
        <translation>所有类别</translation>
    </message>
    <message>
        <source>List records of this category only</source>
        <translation>只列出此类别的记录</translation>
    </message>
    <message>
        <source>All sources</source>
        <translation>所有数据源</translation>
    </message>
    <message>
        <source>List records of this SAC/SIC only</source>
        <translation>只列出此 SAC/SIC 的记录</translation>
    </message>
    <message>
        <source>Whatever became of them</source>
        <translation>任何处理结果</translation>
    </message>
    <message>
        <source>List records of which this became only</source>
        <translation>只列出处理结果为此的记录</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <source>Dropped</source>
        <translation>已丢弃</translation>
    </message>
    <message>
        <source>Cannot be decoded</source>
        <translation>无法解码</translation>
    </message>
    <message>
        <source>Call sign, code, address, #track</source>
        <translation>呼号、编码、地址、#航迹</translation>
    </message>
</context>
<context>
    <name>RawRecord</name>
    <message>
        <source>Mode S</source>
        <translation>S 模式</translation>
    </message>
    <message>
        <source>SIR-M</source>
        <translation>SIR-M</translation>
    </message>
    <message>
        <source>%1: %2, at octet %3</source>
        <translation>%1：%2，在字节 %3</translation>
    </message>
</context>
<context>
    <name>RawRecordModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>Octets</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>识别</translation>
    </message>
    <message>
        <source>Became</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>内容</translation>
    </message>
</context>
<context>
    <name>RawViewWindow</name>
    <message>
        <source>Raw View</source>
        <translation>原始数据</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message>
        <source>List nothing more; what arrives meanwhile is not kept</source>
        <translation>不再列出；期间到达的数据不保留</translation>
    </message>
    <message>
        <source>&amp;Follow</source>
        <translation>跟随(&amp;F)</translation>
    </message>
    <message>
        <source>Keep the newest record in sight</source>
        <translation>保持最新记录可见</translation>
    </message>
    <message>
        <source>Find a value, an item, a reason</source>
        <translation>查找数值、数据项、原因</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>查找上一个(&amp;V)</translation>
    </message>
    <message>
        <source>The next older record with that text</source>
        <translation>含该文字的上一条较旧记录</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>The next newer record with that text</source>
        <translation>含该文字的下一条较新记录</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>Save the listed records to a file</source>
        <translation>将列出的记录保存到文件</translation>
    </message>
    <message>
        <source>&amp;Diagnose...</source>
        <translation>诊断(&amp;D)...</translation>
    </message>
    <message>
        <source>Say in words what arrives and what is wrong with it</source>
        <translation>用文字说明收到的内容及其问题</translation>
    </message>
    <message>
        <source>Choose a record to see what it holds.</source>
        <translation>选择记录以查看其内容。</translation>
    </message>
    <message>
        <source>Paused, what arrives is not kept</source>
        <translation>已暂停，到达的数据不保留</translation>
    </message>
    <message>
        <source>Nothing has arrived yet</source>
        <translation>尚未收到数据</translation>
    </message>
    <message>
        <source>%1 newest records</source>
        <translation>最新 %1 条记录</translation>
    </message>
    <message>
        <source>%1 of the %2 newest records</source>
        <translation>最新 %2 条记录中的 %1 条</translation>
    </message>
    <message>
        <source>%1 records/s</source>
        <translation>%1 条记录/s</translation>
    </message>
    <message>
        <source>%1 came too fast and were left out</source>
        <translation>%1 条因到达过快而被忽略</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>正在查找...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Export Records</source>
        <translation>导出记录</translation>
    </message>
    <message>
        <source>JSON lines (*.ndjson);;Network capture (*.pcap);;Octets as text (*.txt)</source>
        <translation>JSON 行 (*.ndjson)；；网络抓包 (*.pcap)；；文本字节 (*.txt)</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>正在导出...</translation>
    </message>
    <message>
        <source>%1 records saved to %2</source>
        <translation>%1 条记录已保存到 %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>记录</translation>
    </message>
</context>
<context>
    <name>RecFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>Its contents are none of the known recording formats.</source>
        <translation>其内容不属于任何已知的记录格式。</translation>
    </message>
    <message>
        <source>It is no regular file.</source>
        <translation>这不是普通文件。</translation>
    </message>
    <message>
        <source>Network capture</source>
        <translation>网络抓包</translation>
    </message>
    <message>
        <source>Network capture, next generation</source>
        <translation>网络抓包（新一代）</translation>
    </message>
    <message>
        <source>Raw ASTERIX data blocks</source>
        <translation>原始 ASTERIX 数据块</translation>
    </message>
    <message>
        <source>Final format recording</source>
        <translation>Final Format 记录</translation>
    </message>
    <message>
        <source>GPS recording</source>
        <translation>GPS 记录</translation>
    </message>
    <message>
        <source>Mode S recording</source>
        <translation>S 模式记录</translation>
    </message>
    <message>
        <source>Unknown recording format</source>
        <translation>未知记录格式</translation>
    </message>
    <message>
        <source>Recording files</source>
        <translation>记录文件</translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Not decoded: %1, at octet %2.</source>
        <translation>未解码：%1，在字节 %2。</translation>
    </message>
    <message>
        <source>Only the first %1 of its %2 octets are kept.</source>
        <translation>%2 字节中只保留了前 %1 个。</translation>
    </message>
    <message>
        <source>There is no table that reads this.</source>
        <translation>没有可读取它的定义表。</translation>
    </message>
</context>
<context>
    <name>RecordTree</name>
    <message>
        <source>Item</source>
        <translation>数据项</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>Items of the record</source>
        <translation>记录的数据项</translation>
    </message>
</context>
<context>
    <name>RecordingAnalysis</name>
    <message>
        <source>%1 (at octet %2).</source>
        <translation>%1（在字节 %2）。</translation>
    </message>
    <message>
        <source>The capture holds no UDP datagrams.</source>
        <translation>抓包中没有 UDP 数据报。</translation>
    </message>
    <message>
        <source>It holds no messages.</source>
        <translation>其中没有报文。</translation>
    </message>
    <message>
        <source>It holds %1.</source>
        <translation>其中有 %1。</translation>
    </message>
</context>
<context>
    <name>RecordingAssessment</name>
    <message>
        <source>%1 (at octet %2)</source>
        <translation>%1（在字节 %2）</translation>
    </message>
    <message>
        <source>It holds no ASTERIX data.</source>
        <translation>其中没有 ASTERIX 数据。</translation>
    </message>
</context>
<context>
    <name>RecordingInput</name>
    <message>
        <source>Open recording file: %1</source>
        <translation>打开记录文件：%1</translation>
    </message>
    <message>
        <source>Recording file format is not supported.</source>
        <translation>不支持该记录文件格式。</translation>
    </message>
    <message>
        <source>Failed to crate recording file reader.</source>
        <translation>创建记录文件读取器失败。</translation>
    </message>
    <message>
        <source>Failed to open recording file: %1</source>
        <translation>打开记录文件失败：%1</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>无法读取记录。</translation>
    </message>
    <message>
        <source>Replay start time: %1</source>
        <translation>回放起始时间：%1</translation>
    </message>
    <message>
        <source>Seeking replay start time.</source>
        <translation>正在定位回放起始时间。</translation>
    </message>
    <message>
        <source>The recording contains no timestamp, its start time cannot be sought.</source>
        <translation>记录中没有时间戳，无法定位起始时间。</translation>
    </message>
    <message>
        <source>The recording cannot be read up to the replay start time: %1</source>
        <translation>无法将记录读到回放起始时间：%1</translation>
    </message>
    <message>
        <source>Replay start from %1</source>
        <translation>从 %1 开始回放</translation>
    </message>
    <message>
        <source>Recording file contains no timestamp, replay from the beginning.</source>
        <translation>记录文件没有时间戳，从头开始回放。</translation>
    </message>
    <message>
        <source>Error occured when reading recording file.</source>
        <translation>读取记录文件时出错。</translation>
    </message>
    <message>
        <source>Reach end of recording file.</source>
        <translation>已到达记录文件末尾。</translation>
    </message>
    <message>
        <source>Reach end of recording file, restarting replay.</source>
        <translation>已到达记录文件末尾，重新开始回放。</translation>
    </message>
    <message>
        <source>Recording file contains no replayable data.</source>
        <translation>记录文件中没有可回放的数据。</translation>
    </message>
    <message>
        <source>%1 (at octet %2)</source>
        <translation>%1（在字节 %2）</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>Failed to open recording file: %1</source>
        <translation>打开记录文件失败：%1</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>Looking at %1 ...</source>
        <translation>正在分析 %1 ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation>打开记录</translation>
    </message>
    <message>
        <source>Recording file format is not supported.</source>
        <translation>不支持该记录文件格式。</translation>
    </message>
    <message>
        <source>%1 cannot be played. %2</source>
        <translation>无法回放 %1。%2</translation>
    </message>
    <message>
        <source>%1 holds %2.</source>
        <translation>%1 包含 %2。</translation>
    </message>
    <message>
        <source>The recording does not tell where %1 stands: it is shown around %2 for now; give its place with --sensor, or as Location in Settings, Sensor.</source>
        <translation>记录未说明 %1 的位置：暂以 %2 为中心显示；请用 --sensor 或在“设置”→“传感器”中给出其位置。</translation>
    </message>
</context>
<context>
    <name>Reopening</name>
    <message>
        <source>The input is opened again in %1 s.</source>
        <translation>%1 s 后重新打开输入。</translation>
    </message>
</context>
<context>
    <name>ReplayControls</name>
    <message>
        <source>Open Recording</source>
        <translation>打开记录</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Record Input</source>
        <translation>记录输入</translation>
    </message>
</context>
<context>
    <name>ReplayWindow</name>
    <message>
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Jump to:</source>
        <translation>跳转到(&amp;J)：</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>启动(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Live Input</source>
        <translation>实时输入(&amp;L)</translation>
    </message>
    <message>
        <source>Leave the recording and go back to the live input</source>
        <translation>离开记录并返回实时输入</translation>
    </message>
    <message>
        <source>Start &amp;again at the end</source>
        <translation>到末尾时重新开始(&amp;A)</translation>
    </message>
    <message>
        <source>S&amp;peed:</source>
        <translation>速度(&amp;P)：</translation>
    </message>
    <message>
        <source>No recording is open.</source>
        <translation>没有打开记录。</translation>
    </message>
    <message>
        <source>Open one, or drop a file onto the main window.</source>
        <translation>请打开记录，或将文件拖到主窗口。</translation>
    </message>
    <message>
        <source>Reading the recording to find its times ...</source>
        <translation>正在读取记录以确定其时间 ...</translation>
    </message>
    <message>
        <source>Not read to its end: its times are not known, it plays from its beginning.</source>
        <translation>未读到末尾：时间未知，从头回放。</translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2, %n message(s)</source>
        <translation>
            <numerusform>%1，%2，%n 条报文</numerusform>
        </translation>
    </message>
    <message>
        <source>, without time stamps: plays as fast as it can be read</source>
        <translation>，无时间戳：以读取速度回放</translation>
    </message>
    <message>
        <source>. Faulty: %1</source>
        <translation>。有错误：%1</translation>
    </message>
    <message>
        <source>%1 elapsed</source>
        <translation>已过 %1</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>继续(&amp;R)</translation>
    </message>
    <message>
        <source>The times of this recording are not known</source>
        <translation>此记录的时间未知</translation>
    </message>
</context>
<context>
    <name>ReportOutcome</name>
    <message>
        <source>shown as track</source>
        <translation>显示为航迹</translation>
    </message>
    <message>
        <source>ended a track</source>
        <translation>结束了航迹</translation>
    </message>
    <message>
        <source>shown as plot</source>
        <translation>显示为点迹</translation>
    </message>
    <message>
        <source>alert</source>
        <translation>告警</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>气象</translation>
    </message>
    <message>
        <source>radar video</source>
        <translation>雷达视频</translation>
    </message>
    <message>
        <source>status of the source</source>
        <translation>数据源状态</translation>
    </message>
    <message>
        <source>another SAC/SIC than the sensor&apos;s</source>
        <translation>SAC/SIC 与传感器不同</translation>
    </message>
    <message>
        <source>cannot be decoded</source>
        <translation>无法解码</translation>
    </message>
    <message>
        <source>a kind of message that is not shown</source>
        <translation>不显示的报文种类</translation>
    </message>
    <message>
        <source>not of the configured kind of sensor</source>
        <translation>与所设传感器类型不符</translation>
    </message>
    <message>
        <source>no track number, no address</source>
        <translation>无航迹号，无地址</translation>
    </message>
    <message>
        <source>test target</source>
        <translation>测试目标</translation>
    </message>
    <message>
        <source>no position</source>
        <translation>无位置</translation>
    </message>
    <message>
        <source>position out of range</source>
        <translation>位置超出范围</translation>
    </message>
    <message>
        <source>no system track number free</source>
        <translation>没有空闲的系统航迹号</translation>
    </message>
    <message>
        <source>incomplete message</source>
        <translation>报文不完整</translation>
    </message>
    <message>
        <source>unsupported form of message</source>
        <translation>不支持的报文形式</translation>
    </message>
    <message>
        <source>Mode A/C reply</source>
        <translation>A/C 模式应答</translation>
    </message>
    <message>
        <source>Mode S address not confirmed</source>
        <translation>S 模式地址未确认</translation>
    </message>
</context>
<context>
    <name>ReportView</name>
    <message>
        <source>aircraft identification</source>
        <translation>航空器识别</translation>
    </message>
    <message>
        <source>MCP/FCU selected altitude</source>
        <translation>MCP/FCU 选择高度</translation>
    </message>
    <message>
        <source>FMS selected altitude</source>
        <translation>FMS 选择高度</translation>
    </message>
    <message>
        <source>barometric pressure setting</source>
        <translation>气压设定值</translation>
    </message>
    <message>
        <source>roll angle</source>
        <translation>滚转角</translation>
    </message>
    <message>
        <source>true track angle</source>
        <translation>真航迹角</translation>
    </message>
    <message>
        <source>ground speed</source>
        <translation>地速</translation>
    </message>
    <message>
        <source>track angle rate</source>
        <translation>航迹角变化率</translation>
    </message>
    <message>
        <source>true airspeed</source>
        <translation>真空速</translation>
    </message>
    <message>
        <source>magnetic heading</source>
        <translation>磁航向</translation>
    </message>
    <message>
        <source>indicated airspeed</source>
        <translation>指示空速</translation>
    </message>
    <message>
        <source>Mach number</source>
        <translation>马赫数</translation>
    </message>
    <message>
        <source>barometric altitude rate</source>
        <translation>气压高度变化率</translation>
    </message>
    <message>
        <source>inertial vertical velocity</source>
        <translation>惯性垂直速度</translation>
    </message>
    <message>
        <source>ASTERIX record that cannot be decoded</source>
        <translation>无法解码的 ASTERIX 记录</translation>
    </message>
    <message>
        <source>CAT%1, edition %2</source>
        <translation>CAT%1，版本 %2</translation>
    </message>
    <message>
        <source>downlink format</source>
        <translation>下行格式</translation>
    </message>
    <message>
        <source>message field</source>
        <translation>消息字段</translation>
    </message>
    <message>
        <source>aircraft address</source>
        <translation>航空器地址</translation>
    </message>
    <message>
        <source>aircraft address, laid over the parity</source>
        <translation>叠加于校验位的航空器地址</translation>
    </message>
    <message>
        <source>flight status</source>
        <translation>飞行状态</translation>
    </message>
    <message>
        <source>capability</source>
        <translation>能力</translation>
    </message>
    <message>
        <source>altitude</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Mode A code</source>
        <translation>A 模式编码</translation>
    </message>
    <message>
        <source>type code</source>
        <translation>类型码</translation>
    </message>
    <message>
        <source>movement</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>ground track</source>
        <translation>地面航迹</translation>
    </message>
    <message>
        <source>emergency state</source>
        <translation>紧急状态</translation>
    </message>
    <message>
        <source>height above the ellipsoid</source>
        <translation>椭球高</translation>
    </message>
    <message>
        <source>barometric altitude</source>
        <translation>气压高度</translation>
    </message>
    <message>
        <source>surface</source>
        <translation>地面</translation>
    </message>
    <message>
        <source>airborne</source>
        <translation>空中</translation>
    </message>
    <message>
        <source>CPR format</source>
        <translation>CPR 格式</translation>
    </message>
    <message>
        <source>odd</source>
        <translation>奇</translation>
    </message>
    <message>
        <source>even</source>
        <translation>偶</translation>
    </message>
    <message>
        <source>encoded latitude, %1</source>
        <translation>编码纬度，%1</translation>
    </message>
    <message>
        <source>encoded longitude, %1</source>
        <translation>编码经度，%1</translation>
    </message>
    <message>
        <source>velocity subtype</source>
        <translation>速度子类型</translation>
    </message>
    <message>
        <source>ground speed, of its east and north components</source>
        <translation>地速，由东、北分量得出</translation>
    </message>
    <message>
        <source>track, of the velocity&apos;s east and north components</source>
        <translation>航迹角，由速度的东、北分量得出</translation>
    </message>
    <message>
        <source>heading</source>
        <translation>航向</translation>
    </message>
    <message>
        <source>airspeed</source>
        <translation>空速</translation>
    </message>
    <message>
        <source>vertical rate</source>
        <translation>升降率</translation>
    </message>
    <message>
        <source>Mode S frame that cannot be decoded</source>
        <translation>无法解码的 S 模式帧</translation>
    </message>
    <message>
        <source>, type code %1</source>
        <translation>，类型码 %1</translation>
    </message>
    <message>
        <source>track number</source>
        <translation>航迹号</translation>
    </message>
    <message>
        <source>velocity valid</source>
        <translation>速度有效</translation>
    </message>
    <message>
        <source>velocity present</source>
        <translation>有速度</translation>
    </message>
    <message>
        <source>rate of climb valid</source>
        <translation>爬升率有效</translation>
    </message>
    <message>
        <source>Mode C valid</source>
        <translation>C 模式有效</translation>
    </message>
    <message>
        <source>Mode A valid</source>
        <translation>A 模式有效</translation>
    </message>
    <message>
        <source>vertical trend</source>
        <translation>垂直趋势</translation>
    </message>
    <message>
        <source>track type</source>
        <translation>航迹类型</translation>
    </message>
    <message>
        <source>coasting</source>
        <translation>外推</translation>
    </message>
    <message>
        <source>x, east</source>
        <translation>x，东</translation>
    </message>
    <message>
        <source>y, north</source>
        <translation>y，北</translation>
    </message>
    <message>
        <source>velocity east</source>
        <translation>东向速度</translation>
    </message>
    <message>
        <source>velocity north</source>
        <translation>北向速度</translation>
    </message>
    <message>
        <source>Mode C height</source>
        <translation>C 模式高度</translation>
    </message>
    <message>
        <source>rate of climb or descent</source>
        <translation>爬升或下降率</translation>
    </message>
    <message>
        <source>track end</source>
        <translation>航迹结束</translation>
    </message>
    <message>
        <source>Alenia SIR-M track record</source>
        <translation>Alenia SIR-M 航迹记录</translation>
    </message>
    <message>
        <source>plot type</source>
        <translation>点迹类型</translation>
    </message>
    <message>
        <source>slant range</source>
        <translation>斜距</translation>
    </message>
    <message>
        <source>azimuth</source>
        <translation>方位</translation>
    </message>
    <message>
        <source>Alenia SIR-M plot record</source>
        <translation>Alenia SIR-M 点迹记录</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>message type</source>
        <translation>报文类型</translation>
    </message>
    <message>
        <source>radar</source>
        <translation>雷达编号</translation>
    </message>
    <message>
        <source>length of the message</source>
        <translation>报文长度</translation>
    </message>
    <message>
        <source>time of day</source>
        <translation>日时间</translation>
    </message>
    <message>
        <source>north not synchronised</source>
        <translation>正北未同步</translation>
    </message>
    <message>
        <source>clock not synchronised</source>
        <translation>时钟未同步</translation>
    </message>
    <message>
        <source>rotation period</source>
        <translation>旋转周期</translation>
    </message>
    <message>
        <source>sector valid</source>
        <translation>扇区有效</translation>
    </message>
    <message>
        <source>sector</source>
        <translation>扇区</translation>
    </message>
    <message>
        <source>plot records in the message</source>
        <translation>报文中的点迹记录</translation>
    </message>
    <message>
        <source>track records in the message</source>
        <translation>报文中的航迹记录</translation>
    </message>
    <message>
        <source>Alenia SIR-M sector without records</source>
        <translation>不含记录的 Alenia SIR-M 扇区</translation>
    </message>
    <message>
        <source>Alenia SIR-M message that cannot be decoded</source>
        <translation>无法解码的 Alenia SIR-M 报文</translation>
    </message>
    <message>
        <source>Alenia SIR-M north marker</source>
        <translation>Alenia SIR-M 正北标记</translation>
    </message>
    <message>
        <source>ACAS operational</source>
        <translation>ACAS 工作中</translation>
    </message>
    <message>
        <source>Mode S subnetwork version</source>
        <translation>S 模式子网版本</translation>
    </message>
    <message>
        <source>aircraft identification can be read</source>
        <translation>可读取航空器识别</translation>
    </message>
    <message>
        <source>surveillance identifiers are known</source>
        <translation>支持监视标识码</translation>
    </message>
    <message>
        <source>ACAS with hybrid surveillance</source>
        <translation>ACAS 具备混合监视</translation>
    </message>
    <message>
        <source>ACAS with resolution advisories</source>
        <translation>ACAS 可给出决断咨询</translation>
    </message>
    <message>
        <source>registers that are filled</source>
        <translation>已填充的寄存器</translation>
    </message>
    <message>
        <source>resolution advisory</source>
        <translation>决断咨询</translation>
    </message>
    <message>
        <source>what must not be done</source>
        <translation>禁止的动作</translation>
    </message>
    <message>
        <source>advisory has ended</source>
        <translation>咨询已结束</translation>
    </message>
    <message>
        <source>several threats</source>
        <translation>多个威胁</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>corrective</source>
        <translation>纠正性</translation>
    </message>
    <message>
        <source>preventive</source>
        <translation>预防性</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>向下</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>向上</translation>
    </message>
    <message>
        <source>climb or descend</source>
        <translation>爬升或下降</translation>
    </message>
    <message>
        <source>limit of vertical speed</source>
        <translation>垂直速率限制</translation>
    </message>
    <message>
        <source>increased rate</source>
        <translation>加大速率</translation>
    </message>
    <message>
        <source>sense reversed</source>
        <translation>方向反转</translation>
    </message>
    <message>
        <source>levels cross</source>
        <translation>高度穿越</translation>
    </message>
    <message>
        <source>do not pass below</source>
        <translation>不得从下方通过</translation>
    </message>
    <message>
        <source>do not pass above</source>
        <translation>不得从上方通过</translation>
    </message>
    <message>
        <source>do not turn left</source>
        <translation>不得左转</translation>
    </message>
    <message>
        <source>do not turn right</source>
        <translation>不得右转</translation>
    </message>
    <message>
        <source>threat&apos;s address</source>
        <translation>威胁机地址</translation>
    </message>
    <message>
        <source>threat&apos;s altitude</source>
        <translation>威胁机高度</translation>
    </message>
    <message>
        <source>threat&apos;s range</source>
        <translation>威胁机距离</translation>
    </message>
    <message>
        <source>threat&apos;s bearing</source>
        <translation>威胁机方位</translation>
    </message>
</context>
<context>
    <name>RotationWindow</name>
    <message>
        <source>Rotate View</source>
        <translation>旋转视图</translation>
    </message>
    <message>
        <source>Positive turns the picture clockwise</source>
        <translation>正值使画面顺时针旋转</translation>
    </message>
    <message>
        <source>&amp;Rotation, clockwise:</source>
        <translation>旋转（顺时针）(&amp;R)：</translation>
    </message>
</context>
<context>
    <name>RunConfig</name>
    <message>
        <source>Cannot write the settings file %1</source>
        <translation>无法写入设置文件 %1</translation>
    </message>
    <message>
        <source>Changed settings are not saved: another window with the same settings was open first.</source>
        <translation>更改的设置不会保存：另一个使用相同设置的窗口先打开。</translation>
    </message>
</context>
<context>
    <name>SdpsTracker</name>
    <message>
        <source>SDPS Tracker: CAT062 message has neither valid track number (I062/040) nor valid Mode-S address (I062/380/ADR), ignore.</source>
        <translation>SDPS 跟踪器：CAT062 报文既无有效航迹号（I062/040）也无有效 S 模式地址（I062/380/ADR），忽略。</translation>
    </message>
</context>
<context>
    <name>SensorAssessor</name>
    <message>
        <source>Radar %1</source>
        <translation>雷达 %1</translation>
    </message>
    <message>
        <source>It sends no plots.</source>
        <translation>它不发送点迹。</translation>
    </message>
    <message>
        <source>There is nothing to compare it with: the data hold neither ADS-B reports (CAT021) nor system tracks (CAT062).</source>
        <translation>没有可比较的对象：数据中既无 ADS-B 报告（CAT021）也无系统航迹（CAT062）。</translation>
    </message>
    <message>
        <source>Where the radar stands is not known: it is neither given nor sent in I034/120.</source>
        <translation>雷达位置未知：既未给出，也未在 I034/120 中发送。</translation>
    </message>
    <message>
        <source>None of its plots could be matched with the reference by address or Mode 3/A code.</source>
        <translation>其点迹无法通过地址或 3/A 模式编码与参考匹配。</translation>
    </message>
    <message>
        <source>Too few plots could be matched with the reference, or they lie in too few directions.</source>
        <translation>与参考匹配的点迹太少，或方向太少。</translation>
    </message>
</context>
<context>
    <name>SensorCheck</name>
    <message>
        <source>Detected, %1</source>
        <translation>探测到，%1</translation>
    </message>
</context>
<context>
    <name>SensorCheckWindow</name>
    <message>
        <source>Detection</source>
        <translation>探测</translation>
    </message>
    <message>
        <source>By Range</source>
        <translation>按距离</translation>
    </message>
    <message>
        <source>Range Errors</source>
        <translation>距离误差</translation>
    </message>
    <message>
        <source>Azimuth Errors</source>
        <translation>方位误差</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>天线</translation>
    </message>
    <message>
        <source>Sensor Check</source>
        <translation>传感器检查</translation>
    </message>
    <message>
        <source>Check the input as it comes, or choose a recording.</source>
        <translation>检查实时输入，或选择记录。</translation>
    </message>
    <message>
        <source>Choose a recording.</source>
        <translation>请选择记录。</translation>
    </message>
    <message>
        <source>The input, as it comes</source>
        <translation>实时输入</translation>
    </message>
    <message>
        <source>A recording:</source>
        <translation>记录：</translation>
    </message>
    <message>
        <source>Check Recording</source>
        <translation>检查记录</translation>
    </message>
    <message>
        <source>Data:</source>
        <translation>数据：</translation>
    </message>
    <message>
        <source>Radar:</source>
        <translation>雷达：</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>指标</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Show the probability of detection on the &amp;map</source>
        <translation>在地图上显示探测概率(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Export Report...</source>
        <translation>导出报告(&amp;E)...</translation>
    </message>
    <message>
        <source>The input has ended; this is what came until then.</source>
        <translation>输入已结束；以下为此前收到的内容。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>No input is open: start one, or choose a recording.</source>
        <translation>没有打开输入：请启动输入或选择记录。</translation>
    </message>
    <message>
        <source>Listening...</source>
        <translation>正在监听...</translation>
    </message>
    <message>
        <source>Choose a recording first.</source>
        <translation>请先选择记录。</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>正在读取 %1...</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>文件已损坏：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>There are no reports of radars (CAT001, CAT002, CAT034, CAT048).</source>
        <translation>没有雷达报告（CAT001、CAT002、CAT034、CAT048）。</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>启动(&amp;S)</translation>
    </message>
    <message>
        <source>Where this radar stands is not known.</source>
        <translation>此雷达的位置未知。</translation>
    </message>
    <message>
        <source>Export Report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>sensor-check.html</source>
        <translation>传感器检查.html</translation>
    </message>
    <message>
        <source>Web page (*.html);;Portable document (*.pdf)</source>
        <translation>网页 (*.html)；;PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>已写入 %1。</translation>
    </message>
</context>
<context>
    <name>SensorConfigPage</name>
    <message>
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>From the &amp;file:</source>
        <translation>来自文件(&amp;F)：</translation>
    </message>
    <message>
        <source>Sensor of the input</source>
        <translation>输入的传感器</translation>
    </message>
    <message>
        <source>As entered below</source>
        <translation>如下所填</translation>
    </message>
    <message>
        <source>The sensor file holds no sensor.</source>
        <translation>传感器文件中没有传感器。</translation>
    </message>
    <message>
        <source>Fills the fields below from the sensor file.</source>
        <translation>用传感器文件填写下列字段。</translation>
    </message>
</context>
<context>
    <name>SensorEditWindow</name>
    <message>
        <source>Edit Sensor</source>
        <translation>编辑传感器</translation>
    </message>
    <message>
        <source>New Sensor</source>
        <translation>新传感器</translation>
    </message>
</context>
<context>
    <name>SensorForm</name>
    <message>
        <source>&amp;Type:</source>
        <translation>类型(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;SAC:</source>
        <translation>&amp;SAC:</translation>
    </message>
    <message>
        <source>System area code, 0 to 255: whose sensor it is, as in its messages.</source>
        <translation>系统区域码（SAC），0 至 255：传感器所属区域，与其报文一致。</translation>
    </message>
    <message>
        <source>S&amp;IC:</source>
        <translation>S&amp;IC:</translation>
    </message>
    <message>
        <source>System identification code, 0 to 255: which of the area&apos;s sensors it is.</source>
        <translation>系统识别码（SIC），0 至 255：该区域内的哪个传感器。</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>位置(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>说明(&amp;D)：</translation>
    </message>
    <message>
        <source>Manu&amp;facturer:</source>
        <translation>制造商(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>型号(&amp;M)：</translation>
    </message>
    <message>
        <source>In service since &amp;year:</source>
        <translation>启用年份(&amp;Y)：</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>未给出</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>A sensor needs a name.</source>
        <translation>传感器需要名称。</translation>
    </message>
    <message>
        <source>Another sensor is named &quot;%1&quot;.</source>
        <translation>另一传感器已命名为“%1”。</translation>
    </message>
    <message>
        <source>What kind of sensor it is; the fields below depend on it.</source>
        <translation>传感器的类型；下面的字段由此决定。</translation>
    </message>
    <message>
        <source>What the sensor is called on the map and in messages; no two have the same name.</source>
        <translation>传感器在地图和消息中的名称；不得重名。</translation>
    </message>
    <message>
        <source>Where the sensor stands (WGS-84), such as 480815N0114712E or 48.1375 11.7867.</source>
        <translation>传感器的位置（WGS-84），例如 480815N0114712E 或 48.1375 11.7867。</translation>
    </message>
    <message>
        <source>Whatever helps to tell the sensor from others.</source>
        <translation>有助于区分传感器的任何说明。</translation>
    </message>
    <message>
        <source>Who made the sensor; those of the other records are offered.</source>
        <translation>传感器的制造商；可从其他记录中选择。</translation>
    </message>
    <message>
        <source>What the maker calls it; the models of the maker&apos;s other records are offered.</source>
        <translation>制造商的型号；可从该制造商的其他记录中选择。</translation>
    </message>
    <message>
        <source>The year in which the sensor entered service.</source>
        <translation>传感器投入使用的年份。</translation>
    </message>
</context>
<context>
    <name>SensorList</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>SAC/SIC</source>
        <translation>SAC/SIC</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Manufacturer, model</source>
        <translation>制造商，型号</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>The sensor of the input</source>
        <translation>输入所用的传感器</translation>
    </message>
    <message>
        <source>%1, the sensor of the input</source>
        <translation>%1，输入所用的传感器</translation>
    </message>
</context>
<context>
    <name>SensorManager</name>
    <message>
        <source>%1: sensor &quot;%2&quot; has a value that is not valid and takes its default: %3</source>
        <translation>%1：传感器“%2”的某个值无效，改用默认值：%3</translation>
    </message>
    <message>
        <source>%1: sensors &quot;%2&quot; and &quot;%3&quot; have the same SAC/SIC, %4/%5</source>
        <translation>%1：传感器“%2”和“%3”的 SAC/SIC 相同，为 %4/%5</translation>
    </message>
    <message>
        <source>Record %1: %2</source>
        <translation>记录 %1：%2</translation>
    </message>
    <message>
        <source>it is no object.</source>
        <translation>不是对象。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no known type: &quot;%2&quot;.</source>
        <translation>“%1”的类型未知：“%2”。</translation>
    </message>
    <message>
        <source>it has no name.</source>
        <translation>没有名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no valid location: &quot;%2&quot;.</source>
        <translation>“%1”的位置无效：“%2”。</translation>
    </message>
    <message>
        <source>It is no JSON: %1, line %2.</source>
        <translation>不是 JSON：%1，第 %2 行。</translation>
    </message>
    <message>
        <source>It is no JSON list of sensors.</source>
        <translation>不是传感器的 JSON 列表。</translation>
    </message>
</context>
<context>
    <name>SensorManagerWindow</name>
    <message>
        <source>The device reported an error while writing.</source>
        <translation>写入时设备报告错误。</translation>
    </message>
    <message>
        <source>Sensor Manager</source>
        <translation>传感器管理器</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>添加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>编辑(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>复制一份(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Use for input</source>
        <translation>用于输入(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>The input is running: stop it to choose another sensor.</source>
        <translation>输入正在运行：要选择其他传感器请先停止。</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>尚未保存</translation>
    </message>
    <message>
        <source>File: %1 (changed)</source>
        <translation>文件：%1（已更改）</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>Open Sensor File</source>
        <translation>打开传感器文件</translation>
    </message>
    <message>
        <source>Sensor files (*.json);;All files (*)</source>
        <translation>传感器文件 (*.json)；；所有文件 (*)</translation>
    </message>
    <message>
        <source>The sensor file could not be opened.</source>
        <translation>无法打开传感器文件。</translation>
    </message>
    <message>
        <source>Save Sensor File</source>
        <translation>保存传感器文件</translation>
    </message>
    <message>
        <source>The sensor file could not be saved.</source>
        <translation>无法保存传感器文件。</translation>
    </message>
    <message>
        <source>The sensors have been changed.</source>
        <translation>传感器已更改。</translation>
    </message>
    <message>
        <source>Save the changes to the sensor file?</source>
        <translation>将更改保存到传感器文件吗？</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>以及另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Import Sensors</source>
        <translation>导入传感器</translation>
    </message>
    <message>
        <source>The sensor file could not be imported.</source>
        <translation>无法导入传感器文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already: imported as &quot;%2&quot;.</source>
        <translation>已有“%1”：导入为“%2”。</translation>
    </message>
    <message numerus="yes">
        <source>%n sensor(s) imported.</source>
        <translation>
            <numerusform>已导入 %n 个传感器。</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Sensors</source>
        <translation>导出传感器</translation>
    </message>
    <message>
        <source>The sensors could not be exported.</source>
        <translation>无法导出传感器。</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read.</source>
        <translation>文件读取之后已被其他程序更改。</translation>
    </message>
    <message>
        <source>If it is saved now, the changes of the other program are lost.
%1</source>
        <translation>若现在保存，其他程序所做的更改将丢失。
%1</translation>
    </message>
    <message>
        <source>Save &amp;Anyway</source>
        <translation>仍然保存(&amp;A)</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>In the order of the file; drag a sensor, or move it with Alt+Up and Alt+Down.</source>
        <translation>按文件中的顺序；可拖动传感器，或用 Alt+Up 和 Alt+Down 移动。</translation>
    </message>
    <message>
        <source>Move U&amp;p</source>
        <translation>上移(&amp;P)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>撤销(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>另存为(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>Click the header until the list is not sorted.</source>
        <translation>单击表头，直到列表不再排序。</translation>
    </message>
    <message>
        <source>These records of the file could not be read, and will not be in it when it is saved:
%1</source>
        <translation>文件中的以下记录无法读取，保存后将不再包含在文件中：
%1</translation>
    </message>
    <message>
        <source>No sensors yet. Add one, or import a file.</source>
        <translation>尚无传感器。请添加，或导入文件。</translation>
    </message>
    <message>
        <source>Sensor of the input: none</source>
        <translation>输入所用的传感器：无</translation>
    </message>
    <message>
        <source>Sensor of the input: %1. Its record has other values by now: use it again to take them.</source>
        <translation>输入所用的传感器：%1。其记录现已有其他值：请再次使用以采用这些值。</translation>
    </message>
    <message>
        <source>Sensor of the input: %1</source>
        <translation>输入所用的传感器：%1</translation>
    </message>
</context>
<context>
    <name>SensorSiteWindow</name>
    <message>
        <source>Where Does %1 Stand?</source>
        <translation>%1 的位置在哪里？</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>位置(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Rotation period:</source>
        <translation>旋转周期(&amp;R)：</translation>
    </message>
</context>
<context>
    <name>SensorType</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>雷达</translation>
    </message>
</context>
<context>
    <name>SensorTypeFields</name>
    <message>
        <source>not given</source>
        <translation>未给出</translation>
    </message>
    <message>
        <source>Antenna &amp;altitude:</source>
        <translation>天线高度(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Rotation period:</source>
        <translation>旋转周期(&amp;R)：</translation>
    </message>
    <message>
        <source>Coverage, &amp;primary:</source>
        <translation>覆盖范围（一次）(&amp;P)：</translation>
    </message>
    <message>
        <source>Coverage, se&amp;condary:</source>
        <translation>覆盖范围（二次）(&amp;C)：</translation>
    </message>
    <message>
        <source>Correct s&amp;lant range</source>
        <translation>修正斜距(&amp;L)</translation>
    </message>
    <message>
        <source>Targets whose height is known are shown at their distance over ground; the others as before.</source>
        <translation>高度已知的目标按地面距离显示，其余不变。</translation>
    </message>
    <message>
        <source>A radar is primary, secondary or both.</source>
        <translation>雷达为一次、二次或两者兼有。</translation>
    </message>
    <message>
        <source>Primary radar</source>
        <translation>一次雷达</translation>
    </message>
    <message>
        <source>Secondary radar</source>
        <translation>二次雷达</translation>
    </message>
    <message>
        <source>Mode S</source>
        <translation>S 模式</translation>
    </message>
    <message>
        <source>Co&amp;verage:</source>
        <translation>覆盖范围(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Update interval:</source>
        <translation>更新间隔(&amp;U)：</translation>
    </message>
    <message>
        <source>such as 0, 1, 2</source>
        <translation>例如 0, 1, 2</translation>
    </message>
    <message>
        <source>ADS-&amp;B versions:</source>
        <translation>ADS-B 版本(&amp;B)：</translation>
    </message>
    <message>
        <source>Azimuth &amp;pulses:</source>
        <translation>方位脉冲(&amp;P)：</translation>
    </message>
    <message>
        <source>Height of the antenna above sea level.</source>
        <translation>天线海拔高度。</translation>
    </message>
    <message>
        <source>How long the antenna takes for one turn; tracks live by it.</source>
        <translation>天线旋转一圈的时间；航迹的存续以此为准。</translation>
    </message>
    <message>
        <source>Detects whatever reflects, with or without a transponder.</source>
        <translation>探测任何反射体，无论有无应答机。</translation>
    </message>
    <message>
        <source>How far the primary radar sees; drawn as a circle.</source>
        <translation>一次雷达的作用距离；以圆表示。</translation>
    </message>
    <message>
        <source>Asks transponders for code and level.</source>
        <translation>向应答机询问编码和高度。</translation>
    </message>
    <message>
        <source>Asks single aircraft by their address; every Mode S radar is a secondary one.</source>
        <translation>按地址询问单架航空器；每部 S 模式雷达都是二次雷达。</translation>
    </message>
    <message>
        <source>How far the secondary radar sees; drawn as a circle.</source>
        <translation>二次雷达的作用距离；以圆表示。</translation>
    </message>
    <message>
        <source>How far the station receives; drawn as a circle.</source>
        <translation>地面站的接收距离；以圆表示。</translation>
    </message>
    <message>
        <source>How often an aircraft is reported; tracks live by it.</source>
        <translation>航空器报告的间隔；航迹的存续以此为准。</translation>
    </message>
    <message>
        <source>The versions of ADS-B that the station receives, with commas between them.</source>
        <translation>地面站接收的 ADS-B 版本，以逗号分隔。</translation>
    </message>
    <message>
        <source>How far the system locates aircraft; drawn as a circle.</source>
        <translation>系统定位航空器的距离；以圆表示。</translation>
    </message>
    <message>
        <source>How far the system&apos;s tracks reach; drawn as a circle.</source>
        <translation>系统航迹的覆盖距离；以圆表示。</translation>
    </message>
    <message>
        <source>How often the system sends its tracks; tracks live by it.</source>
        <translation>系统发送航迹的间隔；航迹的存续以此为准。</translation>
    </message>
    <message>
        <source>How far the radar sees; drawn as a circle.</source>
        <translation>雷达的作用距离；以圆表示。</translation>
    </message>
    <message>
        <source>Azimuth change pulses per revolution of the antenna.</source>
        <translation>天线每圈的方位增量脉冲数。</translation>
    </message>
</context>
<context>
    <name>SerialInput</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Open async serial device: %1</source>
        <translation>打开异步串口设备：%1</translation>
    </message>
    <message>
        <source>Device path: %1</source>
        <translation>设备路径：%1</translation>
    </message>
    <message>
        <source>Description: %1</source>
        <translation>说明：%1</translation>
    </message>
    <message>
        <source>Manufacturer: %1</source>
        <translation>制造商：%1</translation>
    </message>
    <message>
        <source>Vendor Identifier: %1</source>
        <translation>厂商标识：%1</translation>
    </message>
    <message>
        <source>Vendor Identifier: Not exist</source>
        <translation>厂商标识：不存在</translation>
    </message>
    <message>
        <source>Product Identifier: %1</source>
        <translation>产品标识：%1</translation>
    </message>
    <message>
        <source>Product Identifier: Not exist</source>
        <translation>产品标识：不存在</translation>
    </message>
    <message>
        <source>There is no serial device %1 (present: %2).</source>
        <translation>没有串口设备 %1（现有：%2）。</translation>
    </message>
    <message>
        <source>Serial device not found: %1</source>
        <translation>找不到串口设备：%1</translation>
    </message>
    <message>
        <source>The serial device %1 cannot be opened: %2</source>
        <translation>无法打开串口设备 %1：%2</translation>
    </message>
    <message>
        <source>Failed to open serial device: %1</source>
        <translation>打开串口设备失败：%1</translation>
    </message>
    <message>
        <source>The serial device refuses its %1: %2</source>
        <translation>串口设备拒绝其%1：%2</translation>
    </message>
    <message>
        <source>baud rate</source>
        <translation>波特率</translation>
    </message>
    <message>
        <source>data bits</source>
        <translation>数据位</translation>
    </message>
    <message>
        <source>parity</source>
        <translation>校验</translation>
    </message>
    <message>
        <source>stop bits</source>
        <translation>停止位</translation>
    </message>
    <message>
        <source>flow control</source>
        <translation>流控制</translation>
    </message>
    <message>
        <source>Close async serial device</source>
        <translation>关闭异步串口设备</translation>
    </message>
    <message>
        <source>The serial device is gone: %1. It is opened again when it is back.</source>
        <translation>串口设备已断开：%1。恢复后将重新打开。</translation>
    </message>
    <message>
        <source>The serial device %1 is back.</source>
        <translation>串口设备 %1 已恢复。</translation>
    </message>
</context>
<context>
    <name>SetCenterWindow</name>
    <message>
        <source>Go To</source>
        <translation>转到</translation>
    </message>
    <message>
        <source>choose one</source>
        <translation>请选择</translation>
    </message>
    <message>
        <source>&amp;Coordinate:</source>
        <translation>坐标(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>最近(&amp;R)：</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> NM</source>
        <translation> NM</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source> ft</source>
        <translation> ft</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source> MiB</source>
        <translation> MiB</translation>
    </message>
</context>
<context>
    <name>SettingsReference</name>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置项</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>作用</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>All Settings</source>
        <translation>所有设置</translation>
    </message>
    <message>
        <source>The fields of the settings window, page by page. &quot;Key&quot; is the name under which the settings file has a setting. A sensor that is chosen there brings settings of its own.</source>
        <translation>设置窗口中的各字段，逐页列出。“键”是设置文件中该设置的名称。在该处选择的传感器带有自己的设置。</translation>
    </message>
</context>
<context>
    <name>Shutdown</name>
    <message>
        <source>Data engine did not confirm the input close within 10 s, forcing shutdown.</source>
        <translation>数据引擎未在 10 s 内确认关闭输入，强制退出。</translation>
    </message>
    <message>
        <source>Data processing thread did not stop within 5 s, abandoning it.</source>
        <translation>数据处理线程未在 5 s 内停止，放弃等待。</translation>
    </message>
</context>
<context>
    <name>SmrTracker</name>
    <message>
        <source>SMR Tracker: CAT010 message has no valid track number (I010/161), ignore.</source>
        <translation>SMR 跟踪器：CAT010 报文没有有效航迹号（I010/161），忽略。</translation>
    </message>
</context>
<context>
    <name>SourceAdvice</name>
    <message>
        <source>All that it sends is used.</source>
        <translation>它发送的内容全部被使用。</translation>
    </message>
    <message>
        <source>Nothing has come for three of its periods: check the source and the line to it.</source>
        <translation>已有三个周期没有收到数据：请检查数据源及其线路。</translation>
    </message>
    <message>
        <source>The source is alive, but these reports have stopped.</source>
        <translation>数据源正常，但此类报告已停止。</translation>
    </message>
    <message>
        <source>In the last minute far fewer reports came than in the ten before: reports are lost on the way, or the source sees less.</source>
        <translation>最近一分钟的报告远少于之前十分钟：报告在途中丢失，或数据源探测到的目标减少。</translation>
    </message>
    <message>
        <source>Reports arrive %1 after their time of day.</source>
        <translation>报告在其日时间之后 %1 到达。</translation>
    </message>
    <message>
        <source>%1 Its clock, or this computer&apos;s, is wrong.</source>
        <translation>%1 其时钟或本机时钟有误。</translation>
    </message>
    <message>
        <source>%1 It is always the same: its clock and this computer&apos;s differ, or the line is slow.</source>
        <translation>%1 始终相同：其时钟与本机时钟不一致，或线路较慢。</translation>
    </message>
    <message>
        <source>%1 It varies, up to %2: they wait somewhere on the way.</source>
        <translation>%1 有变化，最多 %2：报告在途中某处等待。</translation>
    </message>
    <message>
        <source> The last one: %1 at octet %2.</source>
        <translation> 最近一条：%1，在字节 %2。</translation>
    </message>
    <message>
        <source>What cannot be decoded may be of another edition or in another envelope than the one in Settings, Processor.</source>
        <translation>无法解码的内容可能属于与“设置”→“处理器”中不同的版本或封装。</translation>
    </message>
    <message>
        <source>Nothing here shows this kind of message of CAT%1; it is counted only.</source>
        <translation>此处不显示 CAT%1 的这种报文，只计数。</translation>
    </message>
    <message>
        <source>Nothing here shows this kind of message; it is counted only.</source>
        <translation>此处不显示这种报文，只计数。</translation>
    </message>
    <message>
        <source>The sensor is set to %1, which does not send CAT%2.</source>
        <translation>传感器设置为 %1，它不发送 CAT%2。</translation>
    </message>
    <message>
        <source>The sensor is set to %1; these are %2 reports.</source>
        <translation>传感器设置为 %1；而这些是 %2 报告。</translation>
    </message>
    <message>
        <source>These messages are of aircraft whose place is not known: it takes two messages of position, and not all aircraft send them.</source>
        <translation>这些报文来自位置未知的航空器：需要两条位置报文，而并非所有航空器都发送。</translation>
    </message>
    <message>
        <source>These reports carry no position, and no track is known that has one.</source>
        <translation>这些报告没有位置，也没有已知位置的航迹。</translation>
    </message>
    <message>
        <source>These reports carry neither track number nor address. The plot layer shows them.</source>
        <translation>这些报告既无航迹号也无地址。点迹图层会显示它们。</translation>
    </message>
    <message>
        <source>This source is %1/%2, the sensor is set to %3/%4.</source>
        <translation>此数据源为 %1/%2，传感器设置为 %3/%4。</translation>
    </message>
    <message>
        <source>These reports carry neither track number nor address, and no place for a plot.</source>
        <translation>这些报告既无航迹号也无地址，也没有可作点迹的位置。</translation>
    </message>
    <message>
        <source>These are targets that the source makes to test itself; they are not shown.</source>
        <translation>这些是数据源用于自检的目标；不显示。</translation>
    </message>
    <message>
        <source>These positions are not on the globe or out of the sensor&apos;s reach: check its place in Settings, Sensor.</source>
        <translation>这些位置不在地球上或超出传感器作用范围：请检查“设置”→“传感器”中的位置。</translation>
    </message>
    <message>
        <source>All system track numbers are in use: there are more targets than this kind of sensor may have.</source>
        <translation>所有系统航迹号均已占用：目标数超过此类传感器的上限。</translation>
    </message>
    <message>
        <source>These messages lack what they need, or what must come before them has not come yet.</source>
        <translation>这些报文缺少必要内容，或其前置报文尚未到达。</translation>
    </message>
    <message>
        <source>These messages have a form that is not read.</source>
        <translation>这些报文的形式不被读取。</translation>
    </message>
    <message>
        <source>These are replies to Mode A/C interrogations, which tell neither who nor where. Nothing is wrong.</source>
        <translation>这些是对 A/C 模式询问的应答，既不说明是谁也不说明位置。属正常。</translation>
    </message>
    <message>
        <source>These are replies of aircraft of which nothing else was heard. At the rim of reception that is usual.</source>
        <translation>这些应答来自没有收到其他信号的航空器。在接收边缘属常见现象。</translation>
    </message>
    <message>
        <source>Use %1/%2</source>
        <translation>使用 %1/%2</translation>
    </message>
    <message>
        <source>Set the sensor to %1</source>
        <translation>将传感器设为 %1</translation>
    </message>
    <message>
        <source>Show plots</source>
        <translation>显示点迹</translation>
    </message>
    <message>
        <source>Nothing arrives from any source: check the sender and the line.</source>
        <translation>没有任何来源的数据到达：请检查发送端和线路。</translation>
    </message>
</context>
<context>
    <name>SourceJudge</name>
    <message>
        <source>no SAC/SIC</source>
        <translation>无 SAC/SIC</translation>
    </message>
    <message>
        <source>SIR-M %1</source>
        <translation>SIR-M %1</translation>
    </message>
    <message>
        <source>%1 (input %2)</source>
        <translation>%1（输入 %2）</translation>
    </message>
    <message>
        <source>silent since %1</source>
        <translation>自 %1 起静默</translation>
    </message>
    <message>
        <source>%1 late</source>
        <translation>晚到 %1</translation>
    </message>
    <message>
        <source>%1/s, usually %2/s</source>
        <translation>%1/s，通常 %2/s</translation>
    </message>
    <message>
        <source>nothing of it is shown</source>
        <translation>均未显示</translation>
    </message>
    <message>
        <source>arrives as usual</source>
        <translation>正常到达</translation>
    </message>
    <message>
        <source>no data blocks</source>
        <translation>非数据块</translation>
    </message>
</context>
<context>
    <name>SourceTableModel</name>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>最近 10 分钟</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Not used, mostly because</source>
        <translation>未使用，主要原因</translation>
    </message>
    <message numerus="yes">
        <source>%n report(s)</source>
        <translation>
            <numerusform>%n 条报告</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SourceWatch</name>
    <message>
        <source>%1 is %2.</source>
        <translation>%1 %2。</translation>
    </message>
    <message>
        <source>%1 is heard again.</source>
        <translation>重新收到 %1。</translation>
    </message>
    <message>
        <source>The reports of %1 arrive %2 after their time of day.</source>
        <translation>%1 的报告在其日时间之后 %2 到达。</translation>
    </message>
    <message>
        <source>NO DATA from %1 since %2</source>
        <translation>自 %2 起没有 %1 的数据</translation>
    </message>
    <message>
        <source>Other sources go on. Check this one, and the line to it.</source>
        <translation>其他数据源正常。请检查此数据源及其线路。</translation>
    </message>
    <message>
        <source>NO DATA since %1</source>
        <translation>自 %1 起无数据</translation>
    </message>
    <message>
        <source>Nothing that is shown comes from %1 any more: the picture is old.</source>
        <translation>所显示的内容不再来自 %1：画面已过时。</translation>
    </message>
    <message>
        <source>DATA %1 LATE</source>
        <translation>数据晚到 %1</translation>
    </message>
    <message>
        <source>Reports of %1 arrive so long after their time of day: the picture is old, or the clocks differ.</source>
        <translation>%1 的报告比其日时间晚到这么久：画面已过时，或时钟不一致。</translation>
    </message>
    <message>
        <source>DATA LOST: %1 datagrams since %2</source>
        <translation>数据丢失：自 %2 起 %1 个数据报</translation>
    </message>
    <message>
        <source>They found no room in the system&apos;s buffer: this computer cannot keep up with the input.</source>
        <translation>系统缓冲区已满：本机处理速度跟不上输入。</translation>
    </message>
    <message>
        <source>%1 datagrams found no room in the system&apos;s buffer.</source>
        <translation>%1 个数据报因系统缓冲区已满而丢失。</translation>
    </message>
    <message>
        <source>%1 of %2 messages could not be decoded at all: another format or processor than the one in Settings?</source>
        <translation>%2 条报文中有 %1 条完全无法解码：格式或处理器是否与“设置”不符？</translation>
    </message>
    <message>
        <source>%1 messages have octets behind their last block: check sequences, or another envelope than the one in Settings.</source>
        <translation>%1 条报文在最后一个数据块之后还有字节：校验序列，或封装与“设置”不同。</translation>
    </message>
    <message>
        <source>%1 more sources are not listed.</source>
        <translation>另有 %1 个数据源未列出。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1:%2</translation>
    </message>
</context>
<context>
    <name>SourceWindow</name>
    <message>
        <source>What became of its records</source>
        <translation>其记录的处理结果</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>占比</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>数据源 %1</translation>
    </message>
    <message>
        <source>%1 records, %2 octets</source>
        <translation>%1 条记录，%2 字节</translation>
    </message>
    <message>
        <source>%1/s over 10 s, %2/s over 60 s</source>
        <translation>10 s 内 %1/s，60 s 内 %2/s</translation>
    </message>
    <message>
        <source>heard from %1 to %2</source>
        <translation>收到时间 %1 至 %2</translation>
    </message>
    <message>
        <source>edition %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>delay %1 s, 95 % within %2 s, shortest %3 s</source>
        <translation>延迟 %1 s，95 % 在 %2 s 以内，最短 %3 s</translation>
    </message>
    <message>
        <source>a revolution takes %1 s ± %2 s</source>
        <translation>每圈 %1 s ± %2 s</translation>
    </message>
    <message>
        <source>%1 sectors missing</source>
        <translation>缺少 %1 个扇区</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No example is kept.</source>
        <translation>没有保留示例。</translation>
    </message>
</context>
<context>
    <name>SqliteConnection</name>
    <message>
        <source>Qt&apos;s driver for SQLite is not installed (package libqt6sql6-sqlite).</source>
        <translation>未安装 Qt 的 SQLite 驱动（软件包 libqt6sql6-sqlite）。</translation>
    </message>
</context>
<context>
    <name>StaticMapsDelegate</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>by the suffix</source>
        <translation>按后缀</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>StaticMapsModel</name>
    <message>
        <source>waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>loading, %1 %</source>
        <translation>加载中，%1 %</translation>
    </message>
    <message>
        <source>loaded</source>
        <translation>已加载</translation>
    </message>
    <message>
        <source>failed, shown as before: %1</source>
        <translation>失败，按原样显示：%1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Maps of higher priority are drawn over the others.</source>
        <translation>优先级高的地图绘制在其他地图之上。</translation>
    </message>
    <message>
        <source>The map is shown while one pixel stands for this many metres; empty: no limit.</source>
        <translation>一个像素代表此米数时显示该地图；留空：无限制。</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Min. zoom</source>
        <translation>最小缩放</translation>
    </message>
    <message>
        <source>Max. zoom</source>
        <translation>最大缩放</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>The zoom range is empty: %1 to %2.</source>
        <translation>缩放范围为空：%1 至 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a usable number.</source>
        <translation>“%1”不是可用的数字。</translation>
    </message>
</context>
<context>
    <name>StaticMapsWindow</name>
    <message>
        <source>Maps (*.map *.xml *.mapx)</source>
        <translation>地图 (*.map *.xml *.mapx)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Static Maps</source>
        <translation>静态地图</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>添加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>编辑(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;tyle Sheet...</source>
        <translation>样式表(&amp;T)...</translation>
    </message>
    <message>
        <source>Cancel &amp;Loading</source>
        <translation>取消加载(&amp;L)</translation>
    </message>
    <message>
        <source>Index: %1 (changed)</source>
        <translation>索引：%1（已更改）</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>索引：%1</translation>
    </message>
    <message>
        <source>Style sheet: %1</source>
        <translation>样式表：%1</translation>
    </message>
    <message>
        <source>Style sheet: %1 (not usable)</source>
        <translation>样式表：%1（不可用）</translation>
    </message>
    <message>
        <source>The style sheet does not have: %1</source>
        <translation>样式表中缺少：%1</translation>
    </message>
    <message>
        <source>Add Maps</source>
        <translation>添加地图</translation>
    </message>
    <message>
        <source>Select Map Style Sheet</source>
        <translation>选择地图样式表</translation>
    </message>
    <message>
        <source>Map Style Sheet (*.mss)</source>
        <translation>地图样式表 (*.mss)</translation>
    </message>
    <message>
        <source>The map index could not be saved.</source>
        <translation>无法保存地图索引。</translation>
    </message>
    <message>
        <source>The list of maps has been changed.</source>
        <translation>地图列表已更改。</translation>
    </message>
    <message>
        <source>Save the changes to the map index?</source>
        <translation>将更改保存到地图索引吗？</translation>
    </message>
    <message>
        <source>The file is in a format that has to be converted.</source>
        <translation>该文件的格式需要转换。</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>正在转换 %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The file could not be converted.</source>
        <translation>无法转换该文件。</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>地图</translation>
    </message>
</context>
<context>
    <name>StatsWindow</name>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Data Pipeline (10 s window)</source>
        <translation>数据管线（10 s 窗口）</translation>
    </message>
    <message>
        <source>Tracks in snapshot:</source>
        <translation>快照中的航迹：</translation>
    </message>
    <message>
        <source>Alerts in snapshot:</source>
        <translation>快照中的告警：</translation>
    </message>
    <message>
        <source>Snapshot generation, average / maximum:</source>
        <translation>快照生成，平均 / 最大：</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>输入：</translation>
    </message>
    <message>
        <source>Video radials:</source>
        <translation>视频径向线：</translation>
    </message>
    <message>
        <source>Weather picture interval:</source>
        <translation>气象图间隔：</translation>
    </message>
    <message>
        <source>Vectors of last weather picture:</source>
        <translation>最近气象图的矢量数：</translation>
    </message>
    <message>
        <source>Dropped before display (since start)</source>
        <translation>显示前丢弃（自启动起）</translation>
    </message>
    <message>
        <source>Snapshots:</source>
        <translation>快照：</translation>
    </message>
    <message>
        <source>Plots:</source>
        <translation>点迹：</translation>
    </message>
    <message>
        <source>Video batches:</source>
        <translation>视频批次：</translation>
    </message>
    <message>
        <source>Weather pictures:</source>
        <translation>气象图：</translation>
    </message>
    <message>
        <source>Weather pictures without content:</source>
        <translation>无内容的气象图：</translation>
    </message>
    <message>
        <source>Weather pictures without the radar&apos;s place:</source>
        <translation>无雷达位置的气象图：</translation>
    </message>
    <message>
        <source>Largest video delay:</source>
        <translation>最大视频延迟：</translation>
    </message>
    <message>
        <source>Largest weather delay:</source>
        <translation>最大气象延迟：</translation>
    </message>
    <message>
        <source>Painting (10 s window)</source>
        <translation>绘制（10 s 窗口）</translation>
    </message>
    <message>
        <source>Frames:</source>
        <translation>帧数：</translation>
    </message>
    <message>
        <source>Maps, average / maximum:</source>
        <translation>地图，平均 / 最大：</translation>
    </message>
    <message>
        <source>Tracks, average / maximum:</source>
        <translation>航迹，平均 / 最大：</translation>
    </message>
    <message>
        <source>Whole frame, average / maximum:</source>
        <translation>整帧，平均 / 最大：</translation>
    </message>
    <message>
        <source>Map layers (last frame)</source>
        <translation>地图图层（最后一帧）</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the figures to the clipboard</source>
        <translation>将数据复制到剪贴板</translation>
    </message>
    <message>
        <source>%1 / %2 ms</source>
        <translation>%1 / %2 ms</translation>
    </message>
    <message>
        <source>%1/s, %2 KB/s</source>
        <translation>%1/s,%2 KB/s</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>StatusReadOuts</name>
    <message>
        <source>Position under the pointer</source>
        <translation>指针处位置</translation>
    </message>
    <message>
        <source>Pointer from the sensor: true bearing and distance</source>
        <translation>指针相对传感器：真方位和距离</translation>
    </message>
    <message>
        <source>Scale, metres per pixel</source>
        <translation>比例，米/像素</translation>
    </message>
    <message>
        <source>Rotation of the view, degrees clockwise</source>
        <translation>视图旋转，顺时针度数</translation>
    </message>
    <message>
        <source>Minimum safe altitude warning</source>
        <translation>最低安全高度告警（MSAW）</translation>
    </message>
    <message>
        <source>Area proximity warning</source>
        <translation>区域接近告警（APW）</translation>
    </message>
    <message>
        <source>Short-term conflict alert</source>
        <translation>短期冲突告警（STCA）</translation>
    </message>
    <message>
        <source>NOT HEARD</source>
        <translation>未收到</translation>
    </message>
    <message>
        <source>%1° %2 NM</source>
        <translation>%1° %2 NM</translation>
    </message>
    <message>
        <source>SCL %1</source>
        <translation>比例 %1</translation>
    </message>
    <message>
        <source>ROT %1%2</source>
        <translation>旋转 %1%2</translation>
    </message>
    <message>
        <source>Local time, %1</source>
        <translation>当地时间，%1</translation>
    </message>
    <message>
        <source>Coordinated universal time</source>
        <translation>协调世界时</translation>
    </message>
    <message>
        <source>Time of the recording, %1, coordinated universal time</source>
        <translation>记录时间，%1，协调世界时</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>StreamDiagnosis</name>
    <message>
        <source>1 block</source>
        <translation>1 个数据块</translation>
    </message>
    <message>
        <source>%1 blocks</source>
        <translation>%1 个数据块</translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 条报文</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 条报文</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1，来自 %2</translation>
    </message>
    <message>
        <source>edition %1 reads all</source>
        <translation>版本 %1 能读全部</translation>
    </message>
    <message>
        <source>edition %1 reads none</source>
        <translation>版本 %1 一个也不能读</translation>
    </message>
    <message>
        <source>edition %1 reads %2</source>
        <translation>版本 %1 能读 %2</translation>
    </message>
    <message>
        <source>, and no other edition reads any</source>
        <translation>，其他版本也都不能读</translation>
    </message>
    <message>
        <source>; %1 of these no other edition reads</source>
        <translation>；其中 %1 个其他版本不能读</translation>
    </message>
    <message>
        <source>, with implausible values in %1 of %2 records</source>
        <translation>，%2 条记录中 %1 条的值不合理</translation>
    </message>
    <message>
        <source>Of 1 block that was looked at</source>
        <translation>在检查的 1 个数据块中</translation>
    </message>
    <message>
        <source>Of %1 blocks that were looked at</source>
        <translation>在检查的 %1 个数据块中</translation>
    </message>
    <message>
        <source>%1 comes in more than one edition: %2 of %3 records are of edition %4, the others of another one.</source>
        <translation>%1 有多个版本：%3 条记录中 %2 条为版本 %4，其余为另一版本。</translation>
    </message>
    <message>
        <source>%1 is read in edition %2, but nothing in it tells that from edition %3.</source>
        <translation>%1 按版本 %2 读取，但其中没有内容可与版本 %3 区分。</translation>
    </message>
    <message>
        <source> or </source>
        <translation> 或 </translation>
    </message>
    <message>
        <source>%1 is of edition %2.</source>
        <translation>%1 为版本 %2。</translation>
    </message>
    <message>
        <source>In %1 of %2 records of %3 a time, a place or an aircraft identification cannot be right, or bits are set that edition %4 leaves unused.</source>
        <translation>%3 的 %2 条记录中有 %1 条的时间、位置或航空器识别不可能正确，或置位了版本 %4 未使用的位。</translation>
    </message>
    <message>
        <source>%1 is passed over: nothing here reads this category (%2, %3 octets).</source>
        <translation>跳过 %1：此处不读取该类别（%2，%3 字节）。</translation>
    </message>
    <message>
        <source>%1 cannot be decoded: of %2 none fits edition %3, so it is of another edition, or damaged.</source>
        <translation>无法解码 %1：%2 均不符合版本 %3，因此为其他版本或已损坏。</translation>
    </message>
    <message>
        <source>%1 of %2 of %3 cannot be decoded in edition %4: damaged on the way, or of another edition.</source>
        <translation>%3 的 %2 中有 %1 个不能按版本 %4 解码：在途中损坏，或为其他版本。</translation>
    </message>
    <message>
        <source>The first fault: %1, at octet %2 of the block.</source>
        <translation>第一个错误：%1，在数据块的字节 %2。</translation>
    </message>
    <message>
        <source>Nothing has come.</source>
        <translation>没有收到任何数据。</translation>
    </message>
    <message>
        <source>In %1 nothing makes sense as ASTERIX, Mode S or Alenia SIR-M, in whatever encapsulation.</source>
        <translation>%1 中的内容在任何封装下都不能解释为 ASTERIX、S 模式或 Alenia SIR-M。</translation>
    </message>
    <message>
        <source>The first one begins with the octets %1.</source>
        <translation>第一条以字节 %1 开头。</translation>
    </message>
    <message>
        <source>The stream holds %1.</source>
        <translation>数据流包含 %1。</translation>
    </message>
    <message>
        <source>Each message begins with %1 octets of its transport: the format is &quot;%2&quot;.</source>
        <translation>每条报文以 %1 个传输字节开头：格式为“%2”。</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2 中的 %1</translation>
    </message>
    <message>
        <source>Several formats arrive together: beside %1 there is %2. One is shown at a time; each needs a port of its own.</source>
        <translation>多种格式同时到达：除 %1 外还有 %2。一次只显示一种；每种需要各自的端口。</translation>
    </message>
    <message>
        <source>%1 of them have that many, the others between 1 and 32.</source>
        <translation>其中 %1 条有这么多，其余在 1 到 32 之间。</translation>
    </message>
    <message>
        <source>In %1 of %2 the last block is followed by %3 that begin no other one, as recorders and gateways append them; they are passed over.</source>
        <translation>%2 中有 %1 条的最后一个数据块之后跟有 %3，不构成新的数据块，可能由记录仪或网关附加；予以跳过。</translation>
    </message>
    <message>
        <source>1 octet</source>
        <translation>1 个字节</translation>
    </message>
    <message>
        <source>%1 octets</source>
        <translation>%1 个字节</translation>
    </message>
    <message>
        <source>%1 of %2 end within a block: they are cut short, or what follows their blocks is something else.</source>
        <translation>%2 中有 %1 条在数据块内结束：被截断，或其数据块之后是其他内容。</translation>
    </message>
    <message>
        <source>The processor is set to &quot;%1&quot;, but what arrives is %2.</source>
        <translation>处理器设置为“%1”，但到达的是 %2。</translation>
    </message>
    <message>
        <source>The processor is set to %1, but what arrives is %2.</source>
        <translation>处理器设置为 %1，但到达的是 %2。</translation>
    </message>
    <message>
        <source>The profile reads CAT021 in edition %1, but %2 sends edition %3: set it to automatic.</source>
        <translation>规范按版本 %1 读取 CAT021，但 %2 发送的是版本 %3：请设为自动。</translation>
    </message>
    <message>
        <source>Only reports of the sensor&apos;s SAC/SIC %1/%2 are taken, but those that arrive are of %3.</source>
        <translation>只接收传感器 SAC/SIC %1/%2 的报告，但到达的报告来自 %3。</translation>
    </message>
    <message>
        <source>The sensor is set to %1, but what arrives are reports of %2.</source>
        <translation>传感器设置为 %1，但到达的是 %2 的报告。</translation>
    </message>
    <message>
        <source>It cannot be played: %1</source>
        <translation>无法回放：%1</translation>
    </message>
    <message>
        <source>In %1 of %2 records of %3 the aircraft identification cannot be right: its callsigns are not to be relied on.</source>
        <translation>%3 的 %2 条记录中有 %1 条的航空器识别不可能正确：其呼号不可信。</translation>
    </message>
    <message>
        <source>Blanks stand before or between its characters, as in &quot;%1&quot;.</source>
        <translation>字符之前或之间有空格，例如“%1”。</translation>
    </message>
    <message>
        <source>The file is damaged, and nothing can be played beyond that place: %1</source>
        <translation>文件已损坏，该处之后无法回放：%1</translation>
    </message>
</context>
<context>
    <name>StreamFindings</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>%1 (cannot be decoded)</source>
        <translation>%1（无法解码）</translation>
    </message>
    <message>
        <source>%1 in edition %2</source>
        <translation>%1 版本 %2</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 条记录</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 条记录</translation>
    </message>
    <message>
        <source>polar positions</source>
        <translation>极坐标位置</translation>
    </message>
    <message>
        <source>Cartesian positions</source>
        <translation>直角坐标位置</translation>
    </message>
    <message>
        <source>WGS-84 positions</source>
        <translation>WGS-84 位置</translation>
    </message>
    <message>
        <source>track numbers</source>
        <translation>航迹号</translation>
    </message>
    <message>
        <source>aircraft addresses</source>
        <translation>航空器地址</translation>
    </message>
    <message>
        <source>no positions</source>
        <translation>无位置</translation>
    </message>
    <message>
        <source>no track numbers</source>
        <translation>无航迹号</translation>
    </message>
    <message>
        <source>both in %1 of %2 reports</source>
        <translation>%2 个报告中 %1 个两者兼有</translation>
    </message>
    <message>
        <source>turning once in %1 s</source>
        <translation>每圈 %1 s</translation>
    </message>
    <message>
        <source>around %1</source>
        <translation>%1 附近</translation>
    </message>
    <message>
        <source>%1 from %2 (%3)</source>
        <translation>%1，来自 %2(%3)</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另外 %1 个</translation>
    </message>
    <message>
        <source>%1 sources: %2</source>
        <translation>%1 个数据源：%2</translation>
    </message>
    <message>
        <source>Mode S (%1): %2 frames</source>
        <translation>S 模式（%1）：%2 帧</translation>
    </message>
    <message>
        <source>%1 aircraft with extended squitters</source>
        <translation>%1 架有扩展间歇信号的航空器</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 个位置</translation>
    </message>
    <message>
        <source>%1 Mode A/C replies</source>
        <translation>%1 个 A/C 模式应答</translation>
    </message>
    <message>
        <source>Alenia SIR-M radar %1: %2 tracks</source>
        <translation>Alenia SIR-M 雷达 %1：%2 条航迹</translation>
    </message>
    <message>
        <source>%1 plots</source>
        <translation>%1 个点迹</translation>
    </message>
    <message>
        <source>a source without SAC/SIC</source>
        <translation>无 SAC/SIC 的数据源</translation>
    </message>
    <message>
        <source>ASTERIX</source>
        <translation>ASTERIX</translation>
    </message>
    <message>
        <source>ASTERIX in %1</source>
        <translation>%1 中的 ASTERIX</translation>
    </message>
    <message>
        <source>Mode S (%1)</source>
        <translation>S 模式（%1）</translation>
    </message>
    <message>
        <source>Alenia SIR-M</source>
        <translation>Alenia SIR-M</translation>
    </message>
    <message>
        <source>Alenia SIR-M in %1</source>
        <translation>%1 中的 Alenia SIR-M</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1，来自 %2</translation>
    </message>
    <message>
        <source>no ASTERIX, Mode S or SIR-M data in %1 messages</source>
        <translation>%1 条报文中没有 ASTERIX、S 模式或 SIR-M 数据</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>在 %1 中</translation>
    </message>
    <message>
        <source>%1 of %2 octets cannot be decoded</source>
        <translation>%2 字节中有 %1 字节无法解码</translation>
    </message>
</context>
<context>
    <name>StreamReader</name>
    <message>
        <source>This reader reads no network captures.</source>
        <translation>此读取器不读取网络抓包文件。</translation>
    </message>
</context>
<context>
    <name>SymbolExplanation</name>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Alert identifier</source>
        <translation>告警标识</translation>
    </message>
    <message>
        <source>Time of message</source>
        <translation>报文时间</translation>
    </message>
    <message>
        <source>First track number</source>
        <translation>第一航迹号</translation>
    </message>
    <message>
        <source>First callsign</source>
        <translation>第一呼号</translation>
    </message>
    <message>
        <source>First squawk</source>
        <translation>第一应答机编码</translation>
    </message>
    <message>
        <source>Second track number</source>
        <translation>第二航迹号</translation>
    </message>
    <message>
        <source>Second callsign</source>
        <translation>第二呼号</translation>
    </message>
    <message>
        <source>Second squawk</source>
        <translation>第二应答机编码</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Time to conflict</source>
        <translation>距冲突时间</translation>
    </message>
    <message>
        <source>Time to closest approach</source>
        <translation>距最近接近点时间</translation>
    </message>
    <message>
        <source>Horizontal separation</source>
        <translation>水平间隔</translation>
    </message>
    <message>
        <source>Vertical separation</source>
        <translation>垂直间隔</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>航迹</translation>
    </message>
    <message>
        <source>the report names no track by number or address</source>
        <translation>报告未以航迹号或地址指明航迹</translation>
    </message>
    <message>
        <source>shown as %1, %2</source>
        <translation>显示为 %1，%2</translation>
    </message>
    <message>
        <source>the report is one of those that this track is made of</source>
        <translation>该报告是构成此航迹的报告之一</translation>
    </message>
</context>
<context>
    <name>SystemTracker</name>
    <message>
        <source>%1 Tracker: the WGS-84 and Cartesian positions of SAC/SIC %2/%3 lie %4 NM apart, see the settings &quot;Ignore WGS-84 positions&quot; and &quot;Ignore Cartesian positions&quot;.</source>
        <translation>%1 跟踪器：SAC/SIC %2/%3 的 WGS-84 位置与直角坐标位置相距 %4 NM，见设置“忽略 WGS-84 位置”和“忽略直角坐标位置”。</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>%1 at octet %2</source>
        <translation>%1，在字节 %2</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>没有名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting of a theme</source>
        <translation>“%1”不是主题的设置</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be %2</source>
        <translation>“%1”不能为 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour of a part of a window</source>
        <translation>“%1”不是窗口部件的颜色</translation>
    </message>
    <message>
        <source>of the windows&apos; colours some are missing, so they are left out</source>
        <translation>窗口颜色不全，因此被忽略</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>Dusk</source>
        <translation>黄昏</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日间</translation>
    </message>
</context>
<context>
    <name>ThemeLibrary</name>
    <message>
        <source>Theme file %1: %2</source>
        <translation>主题文件 %1：%2</translation>
    </message>
    <message>
        <source>there is a theme &quot;%1&quot; already</source>
        <translation>已有主题“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a theme of the program&apos;s own.</source>
        <translation>“%1”是程序自带的主题。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>&amp;Undo Theme</source>
        <translation>撤销主题(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Save as Theme...</source>
        <translation>另存为主题(&amp;S)...</translation>
    </message>
    <message>
        <source>There is no theme &quot;%1&quot;.</source>
        <translation>没有主题“%1”。</translation>
    </message>
    <message>
        <source>Save as Theme</source>
        <translation>另存为主题</translation>
    </message>
    <message>
        <source>Colours, fonts and map style as they are now, under the name:</source>
        <translation>将当前的颜色、字体和地图样式保存为：</translation>
    </message>
    <message>
        <source>A theme needs a name.</source>
        <translation>主题需要名称。</translation>
    </message>
    <message>
        <source>Theme &quot;%1&quot; saved.</source>
        <translation>已保存主题“%1”。</translation>
    </message>
</context>
<context>
    <name>TileAnswer</name>
    <message>
        <source>HTTP %1 from %2</source>
        <translation>HTTP %1，来自 %2</translation>
    </message>
    <message>
        <source>the connection was refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>the connection was closed before the answer was complete</source>
        <translation>应答完成前连接已关闭</translation>
    </message>
    <message>
        <source>the host was not found</source>
        <translation>找不到主机</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>应答超时</translation>
    </message>
    <message>
        <source>no secure connection could be made</source>
        <translation>无法建立安全连接</translation>
    </message>
    <message>
        <source>the proxy cannot be reached</source>
        <translation>无法连接代理</translation>
    </message>
    <message>
        <source>the proxy&apos;s host was not found</source>
        <translation>找不到代理主机</translation>
    </message>
    <message>
        <source>the proxy asks for another user name or password</source>
        <translation>代理要求其他用户名或密码</translation>
    </message>
    <message>
        <source>the service redirects without end</source>
        <translation>服务无限重定向</translation>
    </message>
    <message>
        <source>the service redirects to an insecure address</source>
        <translation>服务重定向到不安全的地址</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>错误 %1</translation>
    </message>
    <message>
        <source>an empty answer from %1</source>
        <translation>%1 返回空应答</translation>
    </message>
    <message>
        <source>an answer from %1 that is no whole image</source>
        <translation>%1 的应答不是完整图片</translation>
    </message>
    <message>
        <source>Request parameter error.</source>
        <translation>请求参数错误。</translation>
    </message>
    <message>
        <source>Tile service rejected the request (authentication failed): %1</source>
        <translation>瓦片服务拒绝请求（认证失败）：%1</translation>
    </message>
    <message>
        <source>Tile service is rate limiting requests: %1</source>
        <translation>瓦片服务限制请求频率：%1</translation>
    </message>
    <message>
        <source>Tile service error: %1</source>
        <translation>瓦片服务错误：%1</translation>
    </message>
    <message>
        <source>Network error while requesting tiles: %1</source>
        <translation>请求瓦片时网络错误：%1</translation>
    </message>
</context>
<context>
    <name>TileConfigPage</name>
    <message>
        <source>Map Tiles</source>
        <translation>地图瓦片</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Show map &amp;tiles</source>
        <translation>显示地图瓦片(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Under the static maps:</source>
        <translation>静态地图之下(&amp;U)：</translation>
    </message>
    <message>
        <source>A second service &amp;over the static maps</source>
        <translation>静态地图之上的第二个服务(&amp;O)</translation>
    </message>
    <message>
        <source>O&amp;ver the static maps:</source>
        <translation>静态地图之上(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Dim the lower tiles:</source>
        <translation>调暗下层瓦片(&amp;D)：</translation>
    </message>
    <message>
        <source>Towards the background colour, so that traffic stays in front.</source>
        <translation>向背景色调暗，使交通目标更突出。</translation>
    </message>
    <message>
        <source>Take out their &amp;colour:</source>
        <translation>降低其色彩(&amp;C)：</translation>
    </message>
    <message>
        <source>100 % leaves greys.</source>
        <translation>100 % 时只剩灰度。</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Make &amp;requests to tile services</source>
        <translation>向瓦片服务发出请求(&amp;R)</translation>
    </message>
    <message>
        <source>Off: only tiles that are on this machine already are shown.</source>
        <translation>关闭：只显示本机已有的瓦片。</translation>
    </message>
    <message>
        <source>&amp;Agreed that services learn which area is looked at</source>
        <translation>同意服务获知所查看的区域(&amp;A)</translation>
    </message>
    <message>
        <source>No service is asked before this has been agreed to once.</source>
        <translation>在同意之前不会请求任何服务。</translation>
    </message>
    <message>
        <source>Settings o&amp;f:</source>
        <translation>设置对象(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Imagery:</source>
        <translation>影像(&amp;I)：</translation>
    </message>
    <message>
        <source>Aerial</source>
        <translation>航拍</translation>
    </message>
    <message>
        <source>Aerial with labels</source>
        <translation>航拍带标注</translation>
    </message>
    <message>
        <source>Road</source>
        <translation>道路</translation>
    </message>
    <message>
        <source>Road, light</source>
        <translation>道路，浅色</translation>
    </message>
    <message>
        <source>Road, grey</source>
        <translation>道路，灰色</translation>
    </message>
    <message>
        <source>Road, dark</source>
        <translation>道路，深色</translation>
    </message>
    <message>
        <source>&amp;Language and region:</source>
        <translation>语言和地区(&amp;L)：</translation>
    </message>
    <message>
        <source>Such as en-US or de-DE.</source>
        <translation>例如 en-US 或 de-DE。</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>密钥(&amp;K)：</translation>
    </message>
    <message>
        <source>From your account at the service.</source>
        <translation>来自您在该服务的账户。</translation>
    </message>
    <message>
        <source>&amp;Map:</source>
        <translation>地图(&amp;M)：</translation>
    </message>
    <message>
        <source>Roads alone</source>
        <translation>仅道路</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>地形</translation>
    </message>
    <message>
        <source>Satellite</source>
        <translation>卫星</translation>
    </message>
    <message>
        <source>Map with Terrain</source>
        <translation>地图加地形</translation>
    </message>
    <message>
        <source>Satellite with Road</source>
        <translation>卫星加道路</translation>
    </message>
    <message>
        <source>Terrain with Road</source>
        <translation>地形加道路</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>Such as en or de.</source>
        <translation>例如 en 或 de。</translation>
    </message>
    <message>
        <source>&amp;Country:</source>
        <translation>国家(&amp;C)：</translation>
    </message>
    <message>
        <source>Such as us or de.</source>
        <translation>例如 us 或 de。</translation>
    </message>
    <message>
        <source>Tiles of twice the resolution</source>
        <translation>双倍分辨率瓦片</translation>
    </message>
    <message>
        <source>Imagery</source>
        <translation>影像</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>矢量</translation>
    </message>
    <message>
        <source>&amp;Chart:</source>
        <translation>航图(&amp;C)：</translation>
    </message>
    <message>
        <source>VFR sectional</source>
        <translation>VFR 区域图</translation>
    </message>
    <message>
        <source>VFR terminal</source>
        <translation>VFR 终端图</translation>
    </message>
    <message>
        <source>IFR area, low</source>
        <translation>IFR 区域，低空</translation>
    </message>
    <message>
        <source>IFR high</source>
        <translation>IFR 高空</translation>
    </message>
    <message>
        <source>Select Tile File</source>
        <translation>选择瓦片文件</translation>
    </message>
    <message>
        <source>MBTiles (*.mbtiles);;All files (*)</source>
        <translation>MBTiles (*.mbtiles)；；所有文件 (*)</translation>
    </message>
    <message>
        <source>A file of tiles needs no network. It goes before the address.</source>
        <translation>瓦片文件无需网络，优先于地址。</translation>
    </message>
    <message>
        <source>&amp;File of tiles:</source>
        <translation>瓦片文件(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>地址(&amp;A)：</translation>
    </message>
    <message>
        <source>Such as https://tiles.example/{z}/{x}/{y}.png. Placeholders: {z}, {x}, {y}, {-y} (counted from the south), {quadkey} and {s} (a, b or c).</source>
        <translation>例如 https://tiles.example/{z}/{x}/{y}.png。占位符：{z}、{x}、{y}、{-y}（从南起计）、{quadkey} 和 {s}（a、b 或 c）。</translation>
    </message>
    <message>
        <source>&amp;Header:</source>
        <translation>请求头(&amp;H)：</translation>
    </message>
    <message>
        <source>&quot;Name: value&quot;, sent with each request, for a key.</source>
        <translation>“名称：值”，随每个请求发送，用于密钥。</translation>
    </message>
    <message>
        <source>Deepest &amp;level:</source>
        <translation>最深级别(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Try</source>
        <translation>测试(&amp;Y)</translation>
    </message>
    <message>
        <source>Fetches one tile from this service with the values of this page.</source>
        <translation>用本页的值从该服务获取一个瓦片。</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>正在请求 %1 ...</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>选择目录</translation>
    </message>
    <message>
        <source>&amp;Keep tiles as files</source>
        <translation>将瓦片保存为文件(&amp;K)</translation>
    </message>
    <message>
        <source>Di&amp;rectory of the files:</source>
        <translation>文件目录(&amp;J)：</translation>
    </message>
    <message>
        <source>Files before requests</source>
        <translation>文件优先于请求</translation>
    </message>
    <message>
        <source>A tile that is there as a file is not requested.</source>
        <translation>已有文件的瓦片不再请求。</translation>
    </message>
    <message>
        <source>Files only</source>
        <translation>仅文件</translation>
    </message>
    <message>
        <source>The service is not asked.</source>
        <translation>不向服务发出请求。</translation>
    </message>
    <message>
        <source>Such as https://tiles.example:8443. Empty: the service&apos;s own.</source>
        <translation>例如 https://tiles.example:8443。留空：使用服务自身的。</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Directory of the cac&amp;he:</source>
        <translation>缓存目录(&amp;H)：</translation>
    </message>
    <message>
        <source>Use a &amp;proxy</source>
        <translation>使用代理(&amp;X)</translation>
    </message>
    <message>
        <source>Proxy hos&amp;t:</source>
        <translation>代理主机(&amp;G)：</translation>
    </message>
    <message>
        <source>Proxy &amp;port:</source>
        <translation>代理端口(&amp;P)：</translation>
    </message>
    <message>
        <source>Proxy &amp;user:</source>
        <translation>代理用户(&amp;B)：</translation>
    </message>
    <message>
        <source>Proxy pass&amp;word:</source>
        <translation>代理密码(&amp;W)：</translation>
    </message>
    <message>
        <source>The proxy looks up host &amp;names</source>
        <translation>由代理解析主机名(&amp;N)</translation>
    </message>
    <message>
        <source>An address with http:// or https://, and {z}, {x} and {y} or {quadkey} in it.</source>
        <translation>以 http:// 或 https:// 开头，并含 {z}、{x} 和 {y} 或 {quadkey} 的地址。</translation>
    </message>
    <message>
        <source>A name, a colon and a value.</source>
        <translation>名称、冒号和值。</translation>
    </message>
    <message>
        <source>An address with http:// or https:// and a host.</source>
        <translation>以 http:// 或 https:// 开头并含主机的地址。</translation>
    </message>
    <message>
        <source>Draws maps or pictures of the ground from a service or a file.</source>
        <translation>绘制来自服务或文件的地图或地面影像。</translation>
    </message>
    <message>
        <source>Where the tiles come from that lie at the bottom of the picture.</source>
        <translation>画面最底层瓦片的来源。</translation>
    </message>
    <message>
        <source>For tiles that are transparent apart from names or airspaces.</source>
        <translation>用于除名称或空域外均透明的瓦片。</translation>
    </message>
    <message>
        <source>Where the tiles come from that lie over the static maps.</source>
        <translation>静态地图之上瓦片的来源。</translation>
    </message>
    <message>
        <source>The service whose settings stand below; this chooses no service.</source>
        <translation>下面显示其设置的服务；这并不选用该服务。</translation>
    </message>
    <message>
        <source>Which pictures of the service are shown.</source>
        <translation>显示该服务的哪种影像。</translation>
    </message>
    <message>
        <source>Which maps of the service are shown.</source>
        <translation>显示该服务的哪种地图。</translation>
    </message>
    <message>
        <source>Sharper on fine screens, and four times as much to load.</source>
        <translation>在高分辨率屏幕上更清晰，但下载量为四倍。</translation>
    </message>
    <message>
        <source>Which charts of the service are shown.</source>
        <translation>显示该服务的哪种航图。</translation>
    </message>
    <message>
        <source>The deepest level that has tiles; closer views enlarge these.</source>
        <translation>有瓦片的最深级别；更近的视图放大这些瓦片。</translation>
    </message>
    <message>
        <source>Writes each tile that is loaded to the directory below, for times without a network.</source>
        <translation>将每个下载的瓦片写入下面的目录，供无网络时使用。</translation>
    </message>
    <message>
        <source>Where tiles are kept for good, a file each.</source>
        <translation>永久保存瓦片的位置，每个瓦片一个文件。</translation>
    </message>
    <message>
        <source>Other &amp;server:</source>
        <translation>其他服务器(&amp;S)：</translation>
    </message>
    <message>
        <source>Where tiles are kept that have been loaded, up to a bound.</source>
        <translation>在限额内保存已下载瓦片的位置。</translation>
    </message>
    <message>
        <source>Reaches the services through a SOCKS 5 proxy.</source>
        <translation>通过 SOCKS 5 代理访问服务。</translation>
    </message>
    <message>
        <source>Name or address of the proxy.</source>
        <translation>代理的名称或地址。</translation>
    </message>
    <message>
        <source>The TCP port of the proxy.</source>
        <translation>代理的 TCP 端口。</translation>
    </message>
    <message>
        <source>Empty for a proxy that asks for no name.</source>
        <translation>代理不要求用户名时留空。</translation>
    </message>
    <message>
        <source>Stands in the settings file as it is entered here.</source>
        <translation>按此处输入的内容保存在设置文件中。</translation>
    </message>
    <message>
        <source>Off: this machine looks them up itself.</source>
        <translation>关闭：由本机自行解析。</translation>
    </message>
    <message>
        <source>The demonstration asks no tile service, only files of tiles are shown.</source>
        <translation>演示不向任何瓦片服务请求，只显示瓦片文件。</translation>
    </message>
</context>
<context>
    <name>TileDeployment</name>
    <message>
        <source>%1 does not allow its tiles to be downloaded in bulk or kept, except under an agreement with it.</source>
        <translation>除非另有协议，%1 不允许批量下载或保存其瓦片。</translation>
    </message>
    <message>
        <source>OpenAIP&apos;s data may be used with attribution and not commercially (CC BY-NC).</source>
        <translation>OpenAIP 的数据可在注明出处且非商业的条件下使用（CC BY-NC）。</translation>
    </message>
    <message>
        <source>The charts of the FAA are in the public domain.</source>
        <translation>FAA 的航图属于公有领域。</translation>
    </message>
    <message>
        <source>Please see the terms of the service behind the address.</source>
        <translation>请查看该地址所属服务的条款。</translation>
    </message>
    <message>
        <source>Bing Maps</source>
        <translation>必应地图</translation>
    </message>
    <message>
        <source>OpenAIP</source>
        <translation>OpenAIP</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>谷歌地图</translation>
    </message>
    <message>
        <source>Map World</source>
        <translation>天地图</translation>
    </message>
    <message>
        <source>Map World Annotation</source>
        <translation>天地图注记</translation>
    </message>
    <message>
        <source>FAA Charts</source>
        <translation>FAA 航图</translation>
    </message>
    <message>
        <source>Custom Tiles</source>
        <translation>自定义瓦片</translation>
    </message>
    <message>
        <source>No Service</source>
        <translation>无服务</translation>
    </message>
</context>
<context>
    <name>TileDownload</name>
    <message>
        <source>The terms of %1 forbid downloading its tiles in bulk.</source>
        <translation>%1 的条款禁止批量下载其瓦片。</translation>
    </message>
    <message>
        <source>what came is no image</source>
        <translation>收到的不是图片</translation>
    </message>
    <message>
        <source>Download of tiles stopped: %1</source>
        <translation>瓦片下载已停止：%1</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>无法写入 %1。</translation>
    </message>
</context>
<context>
    <name>TileDownloadWindow</name>
    <message>
        <source>Downloading</source>
        <translation>正在下载</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Download Map Tiles</source>
        <translation>下载地图瓦片</translation>
    </message>
    <message>
        <source>&amp;Service:</source>
        <translation>服务(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;North-west corner:</source>
        <translation>西北角(&amp;N)：</translation>
    </message>
    <message>
        <source>South-&amp;east corner:</source>
        <translation>东南角(&amp;E)：</translation>
    </message>
    <message>
        <source>Area of the &amp;View</source>
        <translation>视图区域(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Levels from:</source>
        <translation>级别从(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;to:</source>
        <translation>到(&amp;T)：</translation>
    </message>
    <message>
        <source>Tile files of the service, for the map layers</source>
        <translation>该服务的瓦片文件，用于地图图层</translation>
    </message>
    <message>
        <source>One MBTiles file</source>
        <translation>一个 MBTiles 文件</translation>
    </message>
    <message>
        <source>Download To</source>
        <translation>下载到</translation>
    </message>
    <message>
        <source>MBTiles (*.mbtiles)</source>
        <translation>MBTiles 文件 (*.mbtiles)</translation>
    </message>
    <message>
        <source>I have the &amp;right to download tiles of this service in bulk</source>
        <translation>我有权批量下载该服务的瓦片(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Write to:</source>
        <translation>写入(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>文件(&amp;F)：</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>数量：</translation>
    </message>
    <message>
        <source>Terms:</source>
        <translation>条款：</translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation>下载(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel Download</source>
        <translation>取消下载(&amp;C)</translation>
    </message>
    <message>
        <source>A download was broken off after %1 of %2 tiles. It can go on from there.</source>
        <translation>一次下载在 %2 个瓦片中的第 %1 个之后中断，可从该处继续。</translation>
    </message>
    <message>
        <source>none: the area or the levels are not complete</source>
        <translation>无：区域或级别不完整</translation>
    </message>
    <message>
        <source>%1 tiles, about %2</source>
        <translation>%1 个瓦片，约 %2</translation>
    </message>
    <message>
        <source>It has to lie south of the other.</source>
        <translation>必须位于另一角之南。</translation>
    </message>
    <message>
        <source>Not below the first level.</source>
        <translation>不能低于第一级。</translation>
    </message>
    <message>
        <source>Without it nothing of this service is downloaded.</source>
        <translation>否则不会从该服务下载任何内容。</translation>
    </message>
    <message>
        <source>The name of a file is needed.</source>
        <translation>需要文件名。</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message>
        <source>Nothing was downloaded: no service is asked before that is agreed to.</source>
        <translation>未下载任何内容：在同意之前不会请求任何服务。</translation>
    </message>
    <message>
        <source>%1: %2 of %3 tiles, %4 fetched (%5)</source>
        <translation>%1：%3 个瓦片中的 %2 个，已获取 %4 个（%5）</translation>
    </message>
    <message>
        <source>%1 the service does not have</source>
        <translation>服务没有其中 %1 个</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>继续(&amp;R)</translation>
    </message>
    <message>
        <source>%1 were there already</source>
        <translation>%1 个已存在</translation>
    </message>
</context>
<context>
    <name>TileFetcher</name>
    <message>
        <source>the answer is larger than a tile can be</source>
        <translation>应答大于瓦片可能的大小</translation>
    </message>
    <message>
        <source>%1 redirects too often</source>
        <translation>%1 重定向次数过多</translation>
    </message>
    <message>
        <source>%1 redirects to an insecure address</source>
        <translation>%1 重定向到不安全的地址</translation>
    </message>
    <message>
        <source>%1 redirects to another server, which must not see the key</source>
        <translation>%1 重定向到不应看到密钥的其他服务器</translation>
    </message>
    <message>
        <source>Tile service connection restored.</source>
        <translation>瓦片服务连接已恢复。</translation>
    </message>
    <message>
        <source>%1 tiles are not available from the tile service (outside coverage or zoom limit).</source>
        <translation>瓦片服务没有 %1 个瓦片（超出覆盖范围或缩放限制）。</translation>
    </message>
    <message>
        <source>online maps have not been agreed to, so the service is not asked</source>
        <translation>尚未同意使用在线地图，因此不请求该服务</translation>
    </message>
</context>
<context>
    <name>TileFileStore</name>
    <message>
        <source>the file would lie outside the tile directory</source>
        <translation>文件将位于瓦片目录之外</translation>
    </message>
    <message>
        <source>the directory cannot be made</source>
        <translation>无法创建目录</translation>
    </message>
</context>
<context>
    <name>TileImage</name>
    <message>
        <source>what came is no whole image</source>
        <translation>收到的不是完整图片</translation>
    </message>
    <message>
        <source>the image is too large: %1 x %2 pixels</source>
        <translation>图片太大：%1 x %2 像素</translation>
    </message>
    <message>
        <source>the image cannot be decoded</source>
        <translation>无法解码图片</translation>
    </message>
</context>
<context>
    <name>TileMaps</name>
    <message>
        <source>Map Tiles</source>
        <translation>地图瓦片</translation>
    </message>
    <message>
        <source>The tiles come from %1, which learns by the requests which area is looked at and from where on the network.

Ask it from now on?</source>
        <translation>瓦片来自 %1，它将通过请求获知所查看的区域及其网络来源。

从现在起向其请求吗？</translation>
    </message>
    <message>
        <source> and </source>
        <translation> 和 </translation>
    </message>
    <message>
        <source>Map tiles: %1</source>
        <translation>地图瓦片：%1</translation>
    </message>
    <message>
        <source>No tile service is chosen: see Map Tiles in the settings.</source>
        <translation>未选择瓦片服务：见设置中的“地图瓦片”。</translation>
    </message>
    <message>
        <source>The demonstration asks no tile service, only files of tiles are shown.</source>
        <translation>演示不请求瓦片服务，只显示瓦片文件。</translation>
    </message>
    <message>
        <source>No tiles are shown: no service is asked before that is agreed to.</source>
        <translation>不显示瓦片：在您同意之前，不会向任何服务请求。</translation>
    </message>
</context>
<context>
    <name>TileProvider</name>
    <message>
        <source>there are no tiles for so wide a view</source>
        <translation>没有如此大视图范围的瓦片</translation>
    </message>
    <message>
        <source>no tiles of this view are saved</source>
        <translation>没有保存此视图的瓦片</translation>
    </message>
</context>
<context>
    <name>TileProviderBing</name>
    <message>
        <source>Copyright %1 Microsoft and its suppliers.</source>
        <translation>版权所有 %1 Microsoft 及其供应商。</translation>
    </message>
</context>
<context>
    <name>TileProviderCustom</name>
    <message>
        <source>The header of the custom tile service is not of the form &quot;Name: value&quot;.</source>
        <translation>自定义瓦片服务的请求头不是“名称：值”的形式。</translation>
    </message>
    <message>
        <source>The address of the custom tile service needs {z}, {x} and {y} or {-y}, or {quadkey}, after its host.</source>
        <translation>自定义瓦片服务的地址在主机之后需要 {z}、{x} 和 {y} 或 {-y}，或 {quadkey}。</translation>
    </message>
    <message>
        <source>The address of the custom tile service is not valid.</source>
        <translation>自定义瓦片服务的地址无效。</translation>
    </message>
    <message>
        <source>Neither an address nor a file of custom tiles is configured.</source>
        <translation>既未配置自定义瓦片的地址，也未配置文件。</translation>
    </message>
</context>
<context>
    <name>TileProviderFaa</name>
    <message>
        <source>Copyright %1 FAA.</source>
        <translation>版权所有 %1 FAA。</translation>
    </message>
</context>
<context>
    <name>TileProviderGoogle</name>
    <message>
        <source>Copyright %1 Google.</source>
        <translation>版权所有 %1 Google。</translation>
    </message>
    <message>
        <source>Road</source>
        <translation>道路</translation>
    </message>
    <message>
        <source>Road (overlay)</source>
        <translation>道路（叠加）</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>地形</translation>
    </message>
    <message>
        <source>Satellite</source>
        <translation>卫星</translation>
    </message>
    <message>
        <source>Map with Terrain</source>
        <translation>地图加地形</translation>
    </message>
    <message>
        <source>Satellite with Road</source>
        <translation>卫星加道路</translation>
    </message>
    <message>
        <source>Terrain with Road</source>
        <translation>地形加道路</translation>
    </message>
</context>
<context>
    <name>TileProviderOpenAip</name>
    <message>
        <source>OpenAIP API key is not configured.</source>
        <translation>未配置 OpenAIP API 密钥。</translation>
    </message>
    <message>
        <source>Copyright %1 OpenAIP.</source>
        <translation>版权所有 %1 OpenAIP。</translation>
    </message>
</context>
<context>
    <name>TileProviderTianditu</name>
    <message>
        <source>Map World API key is not configured.</source>
        <translation>未配置天地图 API 密钥。</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>矢量</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>地形</translation>
    </message>
    <message>
        <source>Imagery</source>
        <translation>影像</translation>
    </message>
</context>
<context>
    <name>TileRequest</name>
    <message>
        <source>The address of the tile server is not valid.</source>
        <translation>瓦片服务器地址无效。</translation>
    </message>
</context>
<context>
    <name>TileStock</name>
    <message>
        <source>Tiles of %1: %2</source>
        <translation>%1 的瓦片：%2</translation>
    </message>
</context>
<context>
    <name>TileTrial</name>
    <message>
        <source>No answer came within 20 seconds.</source>
        <translation>20 秒内没有应答。</translation>
    </message>
    <message>
        <source>The file holds tiles of the levels %1 to %2.</source>
        <translation>文件包含级别 %1 至 %2 的瓦片。</translation>
    </message>
    <message>
        <source>The service answers, but has no tile %1.</source>
        <translation>服务有应答，但没有瓦片 %1。</translation>
    </message>
    <message>
        <source>An answer came, but it is no tile: %1</source>
        <translation>收到应答，但不是瓦片：%1</translation>
    </message>
    <message>
        <source>A tile of %1 x %2 pixels came after %3 s (%4).</source>
        <translation>%3 s 后收到 %1 x %2 像素的瓦片（%4）。</translation>
    </message>
</context>
<context>
    <name>TrackCommands</name>
    <message>
        <source>Explain Alert</source>
        <translation>解释告警</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟随</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Reset Label</source>
        <translation>复位标牌</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>解释</translation>
    </message>
    <message>
        <source>Following %1</source>
        <translation>正在跟随 %1</translation>
    </message>
</context>
<context>
    <name>TrackConfigPage</name>
    <message>
        <source>Tracks</source>
        <translation>航迹</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>&amp;Symbols and vectors:</source>
        <translation>符号和矢量(&amp;S)：</translation>
    </message>
    <message>
        <source>Symbol Colour</source>
        <translation>符号颜色</translation>
    </message>
    <message>
        <source>Casing ro&amp;und symbols:</source>
        <translation>符号描边(&amp;U)：</translation>
    </message>
    <message>
        <source>Casing Colour</source>
        <translation>描边颜色</translation>
    </message>
    <message>
        <source>&amp;Coasting tracks:</source>
        <translation>外推航迹(&amp;C)：</translation>
    </message>
    <message>
        <source>Colour of Coasting Tracks</source>
        <translation>外推航迹颜色</translation>
    </message>
    <message>
        <source>&amp;Emergencies and cautions:</source>
        <translation>紧急和警示(&amp;E)：</translation>
    </message>
    <message>
        <source>Caution Colour</source>
        <translation>警示颜色</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标牌</translation>
    </message>
    <message>
        <source>La&amp;yout:</source>
        <translation>布局(&amp;Y)：</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>紧凑</translation>
    </message>
    <message>
        <source>Compact leaves away what is not known and needs two lines at most.</source>
        <translation>“紧凑”省略未知内容，最多两行。</translation>
    </message>
    <message>
        <source>Arrange labels auto&amp;matically</source>
        <translation>自动排列标牌(&amp;M)</translation>
    </message>
    <message>
        <source>Labels keep clear of each other and of symbols. One that you have dragged stays where you put it.</source>
        <translation>标牌之间以及与符号互相避让。您拖动过的标牌保持原位。</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>文字(&amp;T)：</translation>
    </message>
    <message>
        <source>Label Colour</source>
        <translation>标牌颜色</translation>
    </message>
    <message>
        <source>&amp;Details beside the identity:</source>
        <translation>识别以外的详细信息(&amp;D)：</translation>
    </message>
    <message>
        <source>Colour of Details</source>
        <translation>详细信息颜色</translation>
    </message>
    <message>
        <source>Text of the se&amp;lected track:</source>
        <translation>所选航迹的文字(&amp;L)：</translation>
    </message>
    <message>
        <source>Colour of the Selected Label</source>
        <translation>所选标牌颜色</translation>
    </message>
    <message>
        <source>&amp;Alert:</source>
        <translation>告警(&amp;A)：</translation>
    </message>
    <message>
        <source>Alert Colour</source>
        <translation>告警颜色</translation>
    </message>
    <message>
        <source>Text on the ale&amp;rt colour:</source>
        <translation>告警底色上的文字(&amp;R)：</translation>
    </message>
    <message>
        <source>Colour of Text on the Alert Colour</source>
        <translation>告警底色上的文字颜色</translation>
    </message>
    <message>
        <source>Lea&amp;der lines:</source>
        <translation>引线(&amp;I)：</translation>
    </message>
    <message>
        <source>Leader Colour</source>
        <translation>引线颜色</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>背景(&amp;B)：</translation>
    </message>
    <message>
        <source>Label Background Colour</source>
        <translation>标牌背景颜色</translation>
    </message>
    <message>
        <source>Background &amp;opacity:</source>
        <translation>背景不透明度(&amp;O)：</translation>
    </message>
    <message>
        <source>0 % is transparent, 100 % hides what lies under the label.</source>
        <translation>0 % 为透明，100 % 完全遮住标牌下的内容。</translation>
    </message>
    <message>
        <source>Colour of tracks that are updated as they should be.</source>
        <translation>正常更新的航迹的颜色。</translation>
    </message>
    <message>
        <source>Colour of the edge that sets symbols off from whatever lies under them.</source>
        <translation>使符号与其下内容区分开的描边颜色。</translation>
    </message>
    <message>
        <source>Colour of tracks without a report for too long.</source>
        <translation>过久没有报告的航迹的颜色。</translation>
    </message>
    <message>
        <source>Colour of emergencies and of what needs a look but is no alert.</source>
        <translation>紧急情况以及需要注意但不属告警者的颜色。</translation>
    </message>
    <message>
        <source>Colour of a label&apos;s first line, which says who it is.</source>
        <translation>标牌首行（识别）的颜色。</translation>
    </message>
    <message>
        <source>Colour of level, speed and all else in a label.</source>
        <translation>标牌中高度、速度及其他内容的颜色。</translation>
    </message>
    <message>
        <source>Colour of the label and the symbol of the track that is selected.</source>
        <translation>所选航迹的标牌和符号颜色。</translation>
    </message>
    <message>
        <source>Colour of tracks with an alert and of the ground behind the alert&apos;s name.</source>
        <translation>有告警的航迹以及告警名称底色的颜色。</translation>
    </message>
    <message>
        <source>Colour of the alert&apos;s name in a label.</source>
        <translation>标牌中告警名称的颜色。</translation>
    </message>
    <message>
        <source>Colour of the lines from symbols to their labels.</source>
        <translation>符号到标牌引线的颜色。</translation>
    </message>
    <message>
        <source>Colour of the ground behind the text of a label.</source>
        <translation>标牌文字的底色。</translation>
    </message>
</context>
<context>
    <name>TrackExplanation</name>
    <message>
        <source>valid for %1 s</source>
        <translation>有效期 %1 s</translation>
    </message>
    <message>
        <source>told before the reports that are kept</source>
        <translation>在所保留的报告之前给出</translation>
    </message>
    <message>
        <source>these reports do not carry it</source>
        <translation>这些报告不含此项</translation>
    </message>
    <message>
        <source>not in the last report, so the value before it is not kept</source>
        <translation>最近的报告中没有，因此不保留之前的值</translation>
    </message>
    <message numerus="yes">
        <source>in none of the last %n report(s)</source>
        <translation>
            <numerusform>最近 %n 个报告中均没有</numerusform>
        </translation>
    </message>
    <message>
        <source>garbled (G)</source>
        <translation>混淆（G）</translation>
    </message>
    <message>
        <source>smoothed or not extracted in the last scan (L)</source>
        <translation>经平滑或上一圈未提取（L）</translation>
    </message>
    <message>
        <source>not validated (V)</source>
        <translation>未验证（V）</translation>
    </message>
    <message>
        <source>by which the report finds its track</source>
        <translation>报告据此找到其航迹</translation>
    </message>
    <message>
        <source>the report arrived %1 s later</source>
        <translation>报告晚到 %1 s</translation>
    </message>
    <message>
        <source>the report arrived %1 s earlier: the clocks differ</source>
        <translation>报告早到 %1 s：时钟不一致</translation>
    </message>
    <message>
        <source>180° added to western longitudes, as the settings say</source>
        <translation>按设置对西经加 180°</translation>
    </message>
    <message>
        <source>WGS-84 positions are ignored, as the settings say</source>
        <translation>按设置忽略 WGS-84 位置</translation>
    </message>
    <message>
        <source>Cartesian positions are ignored, as the settings say</source>
        <translation>按设置忽略直角坐标位置</translation>
    </message>
    <message>
        <source>CPR global: this %1 position and the %2 one of %3 s before</source>
        <translation>CPR 全局：本位置（%1）与 %3 s 前的位置（%2）</translation>
    </message>
    <message>
        <source>CPR local: the place nearest to the one before, since there is no pair of even and odd</source>
        <translation>CPR 局部：因没有奇偶配对，取距前一位置最近者</translation>
    </message>
    <message>
        <source>Mode C garbled (G): the level is not taken</source>
        <translation>C 模式混淆（G）：不采用该高度</translation>
    </message>
    <message>
        <source>not validated (V), which is not looked at</source>
        <translation>未验证（V），不予考虑</translation>
    </message>
    <message>
        <source>the calculated altitude is corrected by QNH (I062/135/QNH), so it is no flight level</source>
        <translation>计算高度经 QNH 修正（I062/135/QNH），因此不是飞行高度层</translation>
    </message>
    <message>
        <source>no vertical rate to tell it from</source>
        <translation>没有升降率可供判断</translation>
    </message>
    <message>
        <source>from the vertical rate: climbing or descending beyond 200 ft/min, else level</source>
        <translation>由升降率得出：超过 200 ft/min 为爬升或下降，否则为平飞</translation>
    </message>
    <message>
        <source>SDPS Mode S with aircraft-derived data (I062/380), SDPS without</source>
        <translation>有航空器下传数据（I062/380）为 SDPS Mode S，否则为 SDPS</translation>
    </message>
    <message>
        <source>every track of such reports is</source>
        <translation>此类报告的航迹均如此</translation>
    </message>
    <message>
        <source>no position for %1 s</source>
        <translation>%1 s 没有位置</translation>
    </message>
    <message>
        <source>a report without a track status confirms it</source>
        <translation>没有航迹状态的报告即为确认</translation>
    </message>
    <message>
        <source>all that a surface movement radar sees is</source>
        <translation>场面监视雷达看到的均如此</translation>
    </message>
    <message>
        <source>no report says so</source>
        <translation>没有报告这样说明</translation>
    </message>
    <message>
        <source>by the Mode A code %1</source>
        <translation>由 A 模式编码 %1</translation>
    </message>
    <message>
        <source>as reported; kept for 20 s without being repeated</source>
        <translation>按报告；不重复时保留 20 s</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>航迹号</translation>
    </message>
    <message>
        <source>given by this system</source>
        <translation>由本系统分配</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>tentative</source>
        <translation>试探</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>coasting</source>
        <translation>外推</translation>
    </message>
    <message>
        <source>terminated</source>
        <translation>终止</translation>
    </message>
    <message>
        <source>level</source>
        <translation>平飞</translation>
    </message>
    <message>
        <source>climbing</source>
        <translation>爬升</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>下降</translation>
    </message>
    <message>
        <source>Callsign</source>
        <translation>呼号</translation>
    </message>
    <message>
        <source>Squawk</source>
        <translation>应答机</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Sensor&apos;s track number</source>
        <translation>传感器的航迹号</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>日时间</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Ground speed</source>
        <translation>地速</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>航向</translation>
    </message>
    <message>
        <source>Vertical rate</source>
        <translation>升降率</translation>
    </message>
    <message>
        <source>Vertical trend</source>
        <translation>垂直趋势</translation>
    </message>
    <message>
        <source>Selected altitude</source>
        <translation>选择高度</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>On ground</source>
        <translation>在地面</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>紧急情况</translation>
    </message>
    <message>
        <source>Special pulse</source>
        <translation>特殊脉冲</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>x and y from the sensor, since there is no measured range and azimuth</source>
        <translation>相对传感器的 x 和 y，因为没有测得距离和方位</translation>
    </message>
    <message>
        <source>WGS-84, as reported</source>
        <translation>WGS-84，按报告</translation>
    </message>
    <message>
        <source>x and y from the sensor, since there is no WGS-84 position</source>
        <translation>相对传感器的 x 和 y，因为没有 WGS-84 位置</translation>
    </message>
    <message>
        <source>from the velocity&apos;s components, east and north</source>
        <translation>由速度的东、北分量得出</translation>
    </message>
    <message>
        <source>first register 4,0: MCP/FCU before FMS</source>
        <translation>首个寄存器 4,0：MCP/FCU 优先于 FMS</translation>
    </message>
    <message>
        <source>first register 6,0: barometric before inertial rate, either up to 6,000 ft/min</source>
        <translation>首个寄存器 6,0：气压率优先于惯性率，均不超过 6,000 ft/min</translation>
    </message>
    <message>
        <source>confirmed unless the sensor says that it is tentative</source>
        <translation>除非传感器说明为试探，否则为确认</translation>
    </message>
    <message>
        <source>WGS-84, as reported, since there is no high-resolution position</source>
        <translation>WGS-84，按报告，因为没有高分辨率位置</translation>
    </message>
    <message>
        <source>the flight plan&apos;s</source>
        <translation>来自飞行计划</translation>
    </message>
    <message>
        <source>the aircraft&apos;s own, since there is none of a flight plan</source>
        <translation>航空器自身的，因为没有飞行计划的</translation>
    </message>
    <message>
        <source>from the squitter; from register 2,0 while no squitter has told it</source>
        <translation>来自间歇信号；间歇信号未给出时取自寄存器 2,0</translation>
    </message>
    <message>
        <source>range and azimuth from the sensor, in metres</source>
        <translation>相对传感器的距离和方位，单位米</translation>
    </message>
    <message>
        <source>x and y in kilometres from the sensor</source>
        <translation>相对传感器的 x 和 y，单位公里</translation>
    </message>
    <message>
        <source>the measured flight level, before the calculated one</source>
        <translation>测得的飞行高度层，优先于计算值</translation>
    </message>
    <message>
        <source>the calculated barometric altitude, since there is no measured flight level</source>
        <translation>计算的气压高度，因为没有测得的飞行高度层</translation>
    </message>
    <message>
        <source>the magnetic heading, since there is no track angle</source>
        <translation>磁航向，因为没有航迹角</translation>
    </message>
    <message>
        <source>the geometric rate, since there is no barometric one</source>
        <translation>几何升降率，因为没有气压升降率</translation>
    </message>
    <message>
        <source>as reported, before that of the vertical rate</source>
        <translation>按报告，优先于由升降率得出的</translation>
    </message>
    <message>
        <source>as reported, 0 is a climb and 1 a descent; before that of the vertical rate</source>
        <translation>按报告，0 为爬升，1 为下降；优先于由升降率得出的</translation>
    </message>
    <message>
        <source>as reported</source>
        <translation>按报告</translation>
    </message>
    <message>
        <source>the kind of detection</source>
        <translation>探测方式</translation>
    </message>
    <message>
        <source>tentative, coasting or ended as the sensor says, else confirmed</source>
        <translation>按传感器所述为试探、外推或终止，否则为确认</translation>
    </message>
    <message>
        <source>tentative or coasting as the source says, else confirmed</source>
        <translation>按数据源所述为试探或外推，否则为确认</translation>
    </message>
    <message>
        <source>the slant range is taken as the distance over ground</source>
        <translation>斜距视作地面距离</translation>
    </message>
    <message>
        <source>the slant range is corrected by the level of this report, as the sensor&apos;s settings say</source>
        <translation>斜距已按传感器设置用本报告的高度修正</translation>
    </message>
    <message>
        <source>the slant range is corrected by the track&apos;s level, as the sensor&apos;s settings say; this report has none</source>
        <translation>斜距已按传感器设置用航迹的高度修正；本报告没有高度</translation>
    </message>
    <message>
        <source>the slant range is taken as the distance over ground, since no level is known to correct it by</source>
        <translation>斜距视作地面距离，因为没有可用于修正的高度</translation>
    </message>
    <message>
        <source>range and azimuth from the sensor</source>
        <translation>相对传感器的距离和方位</translation>
    </message>
</context>
<context>
    <name>TrackFormatForm</name>
    <message>
        <source>&amp;Label with</source>
        <translation>标牌包含(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Alert indicator</source>
        <translation>告警指示(&amp;A)</translation>
    </message>
    <message>
        <source>Track &amp;number</source>
        <translation>航迹号(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;ICAO address</source>
        <translation>ICAO 地址(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Callsign</source>
        <translation>呼号(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;quawk</source>
        <translation>应答机编码(&amp;Q)</translation>
    </message>
    <message>
        <source>L&amp;evel</source>
        <translation>高度层(&amp;E)</translation>
    </message>
    <message>
        <source>Selected al&amp;titude</source>
        <translation>选择高度(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Ground speed</source>
        <translation>地速(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Vertical rate</source>
        <translation>升降率(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Heading</source>
        <translation>航向(&amp;H)</translation>
    </message>
    <message>
        <source>Appearance of the label</source>
        <translation>标牌外观</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>背景(&amp;B)</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>字体(&amp;F)：</translation>
    </message>
    <message>
        <source>Font si&amp;ze:</source>
        <translation>字号(&amp;Z)：</translation>
    </message>
    <message>
        <source>&amp;Padding:</source>
        <translation>内边距(&amp;P)：</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Kind of surveillance</source>
        <translation>监视方式</translation>
    </message>
    <message>
        <source>Aircraft, turned to its heading</source>
        <translation>航空器，按航向旋转</translation>
    </message>
    <message>
        <source>Sho&amp;ws:</source>
        <translation>显示(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>大小(&amp;S)：</translation>
    </message>
    <message>
        <source>T&amp;rail</source>
        <translation>尾迹(&amp;R)</translation>
    </message>
    <message>
        <source>Past p&amp;ositions:</source>
        <translation>历史位置(&amp;O)：</translation>
    </message>
    <message>
        <source>Spee&amp;d vector</source>
        <translation>速度矢量(&amp;D)</translation>
    </message>
    <message>
        <source>Time of flight</source>
        <translation>飞行时间</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Tic&amp;ks at every minute or mile</source>
        <translation>每分钟或每海里刻度(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Measures:</source>
        <translation>度量(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;Up to:</source>
        <translation>至(&amp;U)：</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source> NM</source>
        <translation> NM</translation>
    </message>
</context>
<context>
    <name>TrackFormatPreview</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>TrackLabelFormatWindow</name>
    <message>
        <source>Track Label Format</source>
        <translation>航迹标牌格式</translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>PSR</source>
        <translation>PSR</translation>
    </message>
    <message>
        <source>SSR</source>
        <translation>SSR</translation>
    </message>
    <message>
        <source>PSR+SSR</source>
        <translation>PSR+SSR</translation>
    </message>
    <message>
        <source>Mode S</source>
        <translation>S 模式</translation>
    </message>
    <message>
        <source>Mode S+PSR</source>
        <translation>S 模式+PSR</translation>
    </message>
    <message>
        <source>ADS-B</source>
        <translation>ADS-B</translation>
    </message>
    <message>
        <source>MLAT</source>
        <translation>MLAT</translation>
    </message>
    <message>
        <source>SMR</source>
        <translation>SMR</translation>
    </message>
    <message>
        <source>SDPS Mode S</source>
        <translation>SDPS S 模式</translation>
    </message>
    <message>
        <source>SDPS</source>
        <translation>SDPS</translation>
    </message>
    <message>
        <source>Tentative</source>
        <translation>试探</translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Coasting</source>
        <translation>外推</translation>
    </message>
    <message>
        <source>Terminated</source>
        <translation>已终止</translation>
    </message>
    <message>
        <source>Callsign</source>
        <translation>呼号</translation>
    </message>
    <message>
        <source>Aircraft identification</source>
        <translation>航空器识别</translation>
    </message>
    <message>
        <source>Reg</source>
        <translation>国籍</translation>
    </message>
    <message>
        <source>Country of registration, by the aircraft address</source>
        <translation>注册国，按航空器地址</translation>
    </message>
    <message>
        <source>Squawk</source>
        <translation>应答机</translation>
    </message>
    <message>
        <source>Mode 3/A code</source>
        <translation>3/A 模式编码</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Flight level and vertical trend</source>
        <translation>飞行高度层和垂直趋势</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>地速</translation>
    </message>
    <message>
        <source>Ground speed, knots</source>
        <translation>地速，节</translation>
    </message>
    <message>
        <source>Hdg</source>
        <translation>航迹角</translation>
    </message>
    <message>
        <source>Track over ground, degrees</source>
        <translation>航迹角，度</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>升降率</translation>
    </message>
    <message>
        <source>Vertical rate, feet per minute</source>
        <translation>升降率，英尺/分钟</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>What sees the track</source>
        <translation>探测该航迹的手段</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Life state</source>
        <translation>生命周期状态</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>24-bit aircraft address</source>
        <translation>24 位航空器地址</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>航迹号</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>告警</translation>
    </message>
    <message>
        <source>Active safety-net alerts, emergencies (HIJ, RDO, EMG) and special pulse (SPI)</source>
        <translation>有效的安全网告警、紧急情况（HIJ、RDO、EMG）和特殊脉冲（SPI）</translation>
    </message>
    <message>
        <source>Sel</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Selected altitude, hundreds of feet</source>
        <translation>选择高度，百英尺</translation>
    </message>
    <message>
        <source>Dist</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Distance from the sensor, nautical miles</source>
        <translation>距传感器的距离，海里</translation>
    </message>
    <message>
        <source>Brg</source>
        <translation>方位</translation>
    </message>
    <message>
        <source>True bearing from the sensor, degrees</source>
        <translation>相对传感器的真方位，度</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>时龄</translation>
    </message>
    <message>
        <source>Since the last report, seconds</source>
        <translation>距上次报告的时间，秒</translation>
    </message>
    <message>
        <source>Sensor No.</source>
        <translation>传感器号</translation>
    </message>
    <message>
        <source>The sensor&apos;s own track number</source>
        <translation>传感器自身的航迹号</translation>
    </message>
</context>
<context>
    <name>TrackSymbols</name>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>PSR</source>
        <translation>PSR</translation>
    </message>
    <message>
        <source>SSR</source>
        <translation>SSR</translation>
    </message>
    <message>
        <source>PSR + SSR</source>
        <translation>PSR + SSR</translation>
    </message>
    <message>
        <source>Mode S</source>
        <translation>S 模式</translation>
    </message>
    <message>
        <source>PSR + Mode S</source>
        <translation>PSR + S 模式</translation>
    </message>
    <message>
        <source>ADS-B</source>
        <translation>ADS-B</translation>
    </message>
    <message>
        <source>MLAT</source>
        <translation>MLAT</translation>
    </message>
    <message>
        <source>SMR</source>
        <translation>SMR</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>航空器</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>车辆</translation>
    </message>
    <message>
        <source>Coasting</source>
        <translation>外推</translation>
    </message>
</context>
<context>
    <name>Tracker</name>
    <message>
        <source>All system track numbers are in use, reports of further targets are not shown.</source>
        <translation>所有系统航迹号均已占用，其他目标的报告不显示。</translation>
    </message>
</context>
<context>
    <name>UapProfile</name>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>CAT001 plots</source>
        <translation>CAT001 点迹</translation>
    </message>
</context>
<context>
    <name>UdpInput</name>
    <message>
        <source>UDP socket receive buffer size: %1 bytes</source>
        <translation>UDP 套接字接收缓冲区大小：%1 字节</translation>
    </message>
    <message>
        <source>Start UDP input :%1</source>
        <translation>启动 UDP 输入 :%1</translation>
    </message>
    <message>
        <source>UDP port %1 is in use by another program that does not share it.</source>
        <translation>UDP 端口 %1 被另一个不共享端口的程序占用。</translation>
    </message>
    <message>
        <source>There is no right to receive on UDP port %1.</source>
        <translation>没有在 UDP 端口 %1 上接收的权限。</translation>
    </message>
    <message>
        <source>UDP port %1 cannot be opened: %2</source>
        <translation>无法打开 UDP 端口 %1：%2</translation>
    </message>
    <message>
        <source>Failed to bind UDP port %1.</source>
        <translation>绑定 UDP 端口 %1 失败。</translation>
    </message>
    <message>
        <source>Start UDP multicast input %1:%2 on interface %3</source>
        <translation>在接口 %3 上启动 UDP 组播输入 %1:%2</translation>
    </message>
    <message>
        <source>%1 is no multicast group.</source>
        <translation>%1 不是组播组。</translation>
    </message>
    <message>
        <source>The multicast group %1 cannot be joined on interface %2: %3</source>
        <translation>无法在接口 %2 上加入组播组 %1：%3</translation>
    </message>
    <message>
        <source>Failed to join UDP multicast group %1 on interface %2</source>
        <translation>在接口 %2 上加入 UDP 组播组 %1 失败</translation>
    </message>
    <message>
        <source>UDP input backlog: %1 KB pending, decoding cannot keep up, datagrams may be dropped by the OS.</source>
        <translation>UDP 输入积压：%1 KB 待处理，解码跟不上，操作系统可能丢弃数据报。</translation>
    </message>
    <message>
        <source>Stop UDP input</source>
        <translation>停止 UDP 输入</translation>
    </message>
    <message>
        <source>it is down</source>
        <translation>接口已关闭</translation>
    </message>
    <message>
        <source>The multicast group %1 has been joined again on interface %2.</source>
        <translation>已在接口 %2 上重新加入组播组 %1。</translation>
    </message>
    <message>
        <source>The network interface %1 brings nothing: %2. The multicast group %3 is joined again when it is back.</source>
        <translation>网络接口 %1 没有数据：%2。恢复后将重新加入组播组 %3。</translation>
    </message>
    <message>
        <source>The network interface %1 for the multicast group %2 is not there.</source>
        <translation>组播组 %2 的网络接口 %1 不存在。</translation>
    </message>
    <message>
        <source>The multicast group %1 cannot be joined: %2</source>
        <translation>无法加入组播组 %1：%2</translation>
    </message>
</context>
<context>
    <name>UdpInputFields</name>
    <message>
        <source>M&amp;ulticast</source>
        <translation>组播(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Multicast</source>
        <translation>组播(&amp;M)</translation>
    </message>
    <message>
        <source>The multicast group that the sensor sends to, 224.0.0.0 to 239.255.255.255.</source>
        <translation>传感器发送到的组播组，224.0.0.0 至 239.255.255.255。</translation>
    </message>
    <message>
        <source>The network interface on which the group is joined.</source>
        <translation>加入该组所用的网络接口。</translation>
    </message>
    <message>
        <source>Po&amp;rt:</source>
        <translation>端口(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>端口(&amp;P)：</translation>
    </message>
    <message>
        <source>Gr&amp;oup:</source>
        <translation>组(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>组(&amp;G)：</translation>
    </message>
    <message>
        <source>I&amp;nterface:</source>
        <translation>接口(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Interface:</source>
        <translation>接口(&amp;I)：</translation>
    </message>
    <message>
        <source>Chosen by the system</source>
        <translation>由系统选择</translation>
    </message>
    <message>
        <source>This is no IP address.</source>
        <translation>这不是 IP 地址。</translation>
    </message>
    <message>
        <source>A multicast group lies between 224.0.0.0 and 239.255.255.255.</source>
        <translation>组播组在 224.0.0.0 与 239.255.255.255 之间。</translation>
    </message>
    <message>
        <source>Both inputs have the same group and port.</source>
        <translation>两路输入的组和端口相同。</translation>
    </message>
    <message>
        <source>Both inputs have the same port.</source>
        <translation>两路输入的端口相同。</translation>
    </message>
    <message>
        <source>The UDP port that the sensor sends to.</source>
        <translation>传感器发送到的 UDP 端口。</translation>
    </message>
    <message>
        <source>For a sensor that sends to a group of receivers instead of to this machine alone.</source>
        <translation>用于向一组接收者而非仅向本机发送的传感器。</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1（不存在）</translation>
    </message>
</context>
<context>
    <name>UdpPortUsers</name>
    <message>
        <source>a program of the user %1</source>
        <translation>用户 %1 的程序</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (process %2, user %3)</source>
        <translation>“%1”（进程 %2，用户 %3）</translation>
    </message>
</context>
<context>
    <name>UnlockWindow</name>
    <message>
        <source>Unlock Settings</source>
        <translation>解锁设置</translation>
    </message>
    <message>
        <source>The settings of this position are locked.</source>
        <translation>此席位的设置已锁定。</translation>
    </message>
    <message>
        <source>Opens the settings until they are locked again or the program ends.</source>
        <translation>解锁设置，直到再次锁定或程序结束。</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message numerus="yes">
        <source>This is not the password. Try again in %n s.</source>
        <translation>
            <numerusform>密码不正确。请在 %n s 后重试。</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>密码不正确。</translation>
    </message>
</context>
<context>
    <name>VideoConfigPage</name>
    <message>
        <source>Radar Video</source>
        <translation>雷达视频</translation>
    </message>
    <message>
        <source>0 is transparent, 255 hides what lies under the echo.</source>
        <translation>0 为透明，255 完全遮住回波下的内容。</translation>
    </message>
    <message>
        <source>Echoes</source>
        <translation>回波</translation>
    </message>
    <message>
        <source>Show radar &amp;video</source>
        <translation>显示雷达视频(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Afterglow:</source>
        <translation>余辉(&amp;A)：</translation>
    </message>
    <message>
        <source>How long an echo takes to fade away.</source>
        <translation>回波消退所需时间。</translation>
    </message>
    <message>
        <source>&amp;Threshold (0-255):</source>
        <translation>门限（0-255）(&amp;T)：</translation>
    </message>
    <message>
        <source>Amplitudes up to this are not shown.</source>
        <translation>不显示幅度不超过此值的回波。</translation>
    </message>
    <message>
        <source>Weak echoes</source>
        <translation>弱回波</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>颜色(&amp;C)：</translation>
    </message>
    <message>
        <source>Colour of Weak Echoes</source>
        <translation>弱回波颜色</translation>
    </message>
    <message>
        <source>&amp;Opacity (0-255):</source>
        <translation>不透明度（0-255）(&amp;O)：</translation>
    </message>
    <message>
        <source>Strong echoes</source>
        <translation>强回波</translation>
    </message>
    <message>
        <source>Co&amp;lour:</source>
        <translation>颜色(&amp;L)：</translation>
    </message>
    <message>
        <source>Colour of Strong Echoes</source>
        <translation>强回波颜色</translation>
    </message>
    <message>
        <source>O&amp;pacity (0-255):</source>
        <translation>不透明度（0-255）(&amp;P)：</translation>
    </message>
    <message>
        <source>Draws the echoes as the radar&apos;s receiver has them (CAT240).</source>
        <translation>按雷达接收机的原始回波绘制（CAT240）。</translation>
    </message>
    <message>
        <source>Colour of echoes just above the threshold; stronger ones go over to the other colour.</source>
        <translation>刚超过门限的回波颜色；越强越接近另一颜色。</translation>
    </message>
    <message>
        <source>Colour of echoes of full amplitude.</source>
        <translation>满幅回波的颜色。</translation>
    </message>
</context>
<context>
    <name>VideoProcessor</name>
    <message>
        <source>Video Processor: Unsupported video resolution or compressed video, record dropped.</source>
        <translation>视频处理器：不支持的视频分辨率或压缩视频，丢弃记录。</translation>
    </message>
    <message>
        <source>Video Processor: Video vector exceeds the amplitude buffer (%1 cells), record dropped.</source>
        <translation>视频处理器：视频矢量超出幅度缓冲区（%1 个单元），丢弃记录。</translation>
    </message>
    <message>
        <source>Video Processor: Video vector error %1, record dropped.</source>
        <translation>视频处理器：视频矢量错误 %1，丢弃记录。</translation>
    </message>
</context>
<context>
    <name>VyxBinMapFile</name>
    <message>
        <source>Failed to parse the map file at byte %1.</source>
        <translation>解析地图文件第 %1 字节失败。</translation>
    </message>
</context>
<context>
    <name>VyxXmlMapFile</name>
    <message>
        <source>Cannot write image file &quot;%1&quot;: %2.</source>
        <translation>无法写入图片文件“%1”：%2。</translation>
    </message>
    <message>
        <source>This is not a valid VyxXML format map file.</source>
        <translation>这不是有效的 VyxXML 格式地图文件。</translation>
    </message>
    <message>
        <source>Failed to parse the map file at line %1.</source>
        <translation>解析地图文件第 %1 行失败。</translation>
    </message>
</context>
<context>
    <name>WeatherConfigPage</name>
    <message>
        <source>Weather</source>
        <translation>气象</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Show &amp;weather</source>
        <translation>显示气象(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Keep the last picture when an empty one comes</source>
        <translation>收到空图像时保留上一幅(&amp;K)</translation>
    </message>
    <message>
        <source>Remove a picture a&amp;fter:</source>
        <translation>图像移除时间(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Make vectors as wide as they are apart</source>
        <translation>矢量宽度等于其间距(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Vector width:</source>
        <translation>矢量宽度(&amp;V)：</translation>
    </message>
    <message>
        <source>Also used when a picture has too few vectors to tell.</source>
        <translation>图像矢量太少无法判断时也使用此值。</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>&amp;Opacity (0-255):</source>
        <translation>不透明度（0-255）(&amp;O)：</translation>
    </message>
    <message>
        <source>0 is transparent, 255 hides what lies under the weather.</source>
        <translation>0 为透明，255 完全遮住气象下的内容。</translation>
    </message>
    <message>
        <source>Choose a scheme ...</source>
        <translation>选择方案 ...</translation>
    </message>
    <message>
        <source>&amp;Scheme:</source>
        <translation>方案(&amp;S)：</translation>
    </message>
    <message>
        <source>Weather Colour</source>
        <translation>气象颜色</translation>
    </message>
    <message>
        <source>Level &amp;%1:</source>
        <translation>等级 &amp;%1：</translation>
    </message>
    <message>
        <source>Draws the radar&apos;s weather pictures (CAT008).</source>
        <translation>绘制雷达的气象图（CAT008）。</translation>
    </message>
    <message>
        <source>For radars that send empty pictures between full ones.</source>
        <translation>用于在完整图像之间发送空图像的雷达。</translation>
    </message>
    <message>
        <source>How long a picture is shown when no other one follows.</source>
        <translation>没有后续图像时一幅图像的显示时间。</translation>
    </message>
    <message>
        <source>Leaves no gaps between the vectors of a picture, whatever their number.</source>
        <translation>无论图像有多少矢量，矢量之间均不留空隙。</translation>
    </message>
    <message>
        <source>Fills in the colours of all levels; each of them can be changed afterwards.</source>
        <translation>填写所有等级的颜色；之后均可单独更改。</translation>
    </message>
    <message>
        <source>Colour of weather of this intensity, 0 being the lightest.</source>
        <translation>该强度气象的颜色；0 为最弱。</translation>
    </message>
</context>
<context>
    <name>WeatherExplanation</name>
    <message>
        <source>Intensity</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>From range</source>
        <translation>起始距离</translation>
    </message>
    <message>
        <source>To range</source>
        <translation>终止距离</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>方位</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>drawn around the place of the input&apos;s sensor</source>
        <translation>以输入传感器的位置为中心绘制</translation>
    </message>
    <message>
        <source>Scaling factor</source>
        <translation>比例因子</translation>
    </message>
    <message>
        <source>Time of picture</source>
        <translation>图像时间</translation>
    </message>
    <message>
        <source>Vectors in picture</source>
        <translation>图像矢量数</translation>
    </message>
    <message>
        <source>as its end announces</source>
        <translation>按其结束报文所述</translation>
    </message>
    <message>
        <source>its message is kept no more</source>
        <translation>其报文已不再保留</translation>
    </message>
    <message>
        <source>hatched, since this level is switched off (Weather Intensity)</source>
        <translation>以阴影线绘制，因为该等级已关闭（“气象强度”）</translation>
    </message>
    <message>
        <source>in the colour of its level, stronger over weaker</source>
        <translation>按其等级的颜色，强的覆盖弱的</translation>
    </message>
    <message>
        <source>scaled by the factor that an earlier picture began with</source>
        <translation>按较早图像开始时的因子缩放</translation>
    </message>
    <message>
        <source>%1 × 2^(F − 7) NM, with the scaling factor F = %2</source>
        <translation>%1 × 2^(F − 7) NM，比例因子 F = %2</translation>
    </message>
    <message>
        <source>drawn %1° wide, so that neighbours touch</source>
        <translation>绘制宽度 %1°，使相邻者相接</translation>
    </message>
    <message>
        <source>drawn %1° wide, as the settings say</source>
        <translation>按设置绘制宽度 %1°</translation>
    </message>
</context>
<context>
    <name>WeatherIntensityWindow</name>
    <message>
        <source>Weather Intensity</source>
        <translation>气象强度</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>无(&amp;N)</translation>
    </message>
    <message>
        <source>Level &amp;%1</source>
        <translation>等级 &amp;%1</translation>
    </message>
    <message>
        <source>Vectors of this level in the picture</source>
        <translation>图像中该等级的矢量</translation>
    </message>
    <message>
        <source>The colour scheme has no colour for this level.</source>
        <translation>颜色方案中没有该等级的颜色。</translation>
    </message>
</context>
<context>
    <name>WeatherProcessor</name>
    <message>
        <source>Weather Processor: Unsupported CAT008 message type: %1</source>
        <translation>气象处理器：不支持的 CAT008 报文类型：%1</translation>
    </message>
    <message>
        <source>Weather Processor: Incomplete weather picture discarded by new SOP.</source>
        <translation>气象处理器：新的 SOP 到达，丢弃不完整的气象图。</translation>
    </message>
    <message>
        <source>Weather Processor: SOP received (time of day: %1, scale factor: %2).</source>
        <translation>气象处理器：收到 SOP（日时间：%1，比例因子：%2）。</translation>
    </message>
    <message>
        <source>Weather Processor: Polar vectors received without SOP, record dropped.</source>
        <translation>气象处理器：未收到 SOP 即收到极坐标矢量，丢弃记录。</translation>
    </message>
    <message>
        <source>Weather Processor: Polar vector record incomplete, record dropped.</source>
        <translation>气象处理器：极坐标矢量记录不完整，丢弃记录。</translation>
    </message>
    <message>
        <source>Weather Processor: Weather vectors in system coordinates are not supported, record dropped.</source>
        <translation>气象处理器：不支持系统坐标的气象矢量，丢弃记录。</translation>
    </message>
    <message>
        <source>Weather Processor: Test or error polar vector, record dropped.</source>
        <translation>气象处理器：测试或错误的极坐标矢量，丢弃记录。</translation>
    </message>
    <message>
        <source>Weather Processor: No scaling factor received, weather vectors dropped.</source>
        <translation>气象处理器：未收到比例因子，丢弃气象矢量。</translation>
    </message>
    <message>
        <source>Weather Processor: %1 polar vector(s) received (intensity %2, total %3).</source>
        <translation>气象处理器：收到 %1 个极坐标矢量（强度 %2，共 %3）。</translation>
    </message>
    <message>
        <source>Weather Processor: EOP received, weather picture: %1 vector(s).</source>
        <translation>气象处理器：收到 EOP，气象图：%1 个矢量。</translation>
    </message>
    <message>
        <source>Weather Processor: Incomplete weather picture: %1 of %2 vectors received.</source>
        <translation>气象处理器：气象图不完整：%2 个矢量中收到 %1 个。</translation>
    </message>
    <message>
        <source>Weather Processor: EOP received, weather picture %1: %2 of %3 vector(s).</source>
        <translation>气象处理器：收到 EOP，气象图%1：%3 个矢量中的 %2 个。</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>完整</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>不完整</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>What do you want to see?</source>
        <translation>您想查看什么？</translation>
    </message>
    <message>
        <source>&amp;Demonstration</source>
        <translation>演示(&amp;D)</translation>
    </message>
    <message>
        <source>Made-up traffic, to look around. Your settings stay as they are; Stop ends it.</source>
        <translation>模拟交通，用于熟悉程序。您的设置保持不变；“停止”即可结束。</translation>
    </message>
    <message>
        <source>Open a &amp;Recording...</source>
        <translation>打开记录(&amp;R)...</translation>
    </message>
    <message>
        <source>A capture or a recorder&apos;s file. What it holds is found out by itself.</source>
        <translation>抓包或记录仪文件。其内容会自动识别。</translation>
    </message>
    <message>
        <source>&amp;Live Input...</source>
        <translation>实时输入(&amp;L)...</translation>
    </message>
    <message>
        <source>A network or a serial line. You see what arrives before anything is set.</source>
        <translation>网络或串口。在更改任何设置之前即可看到收到的内容。</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>主题(&amp;T)：</translation>
    </message>
    <message>
        <source>Esc leads to the empty scope. Help, Getting Started... brings this page back.</source>
        <translation>按 Esc 进入空白显示。“帮助”→“入门...”可返回此页。</translation>
    </message>
</context>
<context>
    <name>WindowControl</name>
    <message>
        <source>&quot;%1&quot; has to lie between %2 and %3.</source>
        <translation>“%1”必须在 %2 与 %3 之间。</translation>
    </message>
    <message>
        <source>&quot;latitude&quot; and &quot;longitude&quot; belong together.</source>
        <translation>“latitude”与“longitude”必须同时给出。</translation>
    </message>
    <message>
        <source>The input is open already.</source>
        <translation>输入已打开。</translation>
    </message>
    <message>
        <source>No input is open.</source>
        <translation>没有打开输入。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>korvane::airdb::AirDBBuilder</name>
    <message>
        <source>a region needs a code of two capitals and a name</source>
        <translation>地区需要两位大写字母代码和名称</translation>
    </message>
    <message>
        <source>region %1 is there already</source>
        <translation>地区 %1 已存在</translation>
    </message>
    <message>
        <source>country codes have two and three capitals</source>
        <translation>国家代码为两位和三位大写字母</translation>
    </message>
    <message>
        <source>there is no region %1</source>
        <translation>没有地区 %1</translation>
    </message>
    <message>
        <source>country %1 is there already</source>
        <translation>国家 %1 已存在</translation>
    </message>
    <message>
        <source>%1 to %2 are not addresses in their order</source>
        <translation>%1 至 %2 不是按顺序的地址</translation>
    </message>
    <message>
        <source>the block is there already</source>
        <translation>该地址块已存在</translation>
    </message>
    <message>
        <source>there are too many blocks</source>
        <translation>地址块太多</translation>
    </message>
    <message>
        <source>there is no country %1</source>
        <translation>没有国家 %1</translation>
    </message>
    <message>
        <source>military is 1 or empty</source>
        <translation>军用项为 1 或空</translation>
    </message>
    <message>
        <source>%1 is not a system area code</source>
        <translation>%1 不是系统区域码</translation>
    </message>
    <message>
        <source>system area code %1 is there already</source>
        <translation>系统区域码 %1 已存在</translation>
    </message>
    <message>
        <source>%1/%2 is not a sensor</source>
        <translation>%1/%2 不是传感器</translation>
    </message>
    <message>
        <source>a sensor needs a name</source>
        <translation>传感器需要名称</translation>
    </message>
    <message>
        <source>sensor %1/%2 is there already</source>
        <translation>传感器 %1/%2 已存在</translation>
    </message>
    <message>
        <source>%1 is not an aircraft&apos;s address</source>
        <translation>%1 不是航空器地址</translation>
    </message>
    <message>
        <source>an aircraft needs a registration</source>
        <translation>航空器需要注册号</translation>
    </message>
    <message>
        <source>aircraft %1 is there already</source>
        <translation>航空器 %1 已存在</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>korvane::airdb::CsvImport</name>
    <message>
        <source>there is no line with the names of the columns</source>
        <translation>没有列名行</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot;</source>
        <translation>没有列“%1”</translation>
    </message>
    <message>
        <source>a quote is not closed, or the text is not UTF-8</source>
        <translation>引号未闭合，或文字不是 UTF-8</translation>
    </message>
    <message>
        <source>%1 values in %2 columns</source>
        <translation>%2 列中有 %1 个值</translation>
    </message>
</context>
<context>
    <name>korvane::airdb::LibAirDB</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>not an aircraft database</source>
        <translation>不是航空器数据库</translation>
    </message>
    <message>
        <source>aircraft database of another version</source>
        <translation>其他版本的航空器数据库</translation>
    </message>
    <message>
        <source>damaged aircraft database</source>
        <translation>航空器数据库已损坏</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>no screen: set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM=offscreen to run without one</source>
        <translation>没有屏幕：请设置 DISPLAY 或 WAYLAND_DISPLAY，或设 QT_QPA_PLATFORM=offscreen 以无屏运行</translation>
    </message>
    <message>
        <source>the program cannot be started again</source>
        <translation>无法重新启动程序</translation>
    </message>
</context>
</TS>
