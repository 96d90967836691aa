<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>请填写所有字段</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>不能添加自己...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>该 IP 地址已被其他用户使用</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>这不是单台计算机的地址：发往此处的内容，网络上的所有人都能收到。</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>无法保存该地址：它是已存列表的结束标记。</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>这不是 192.168.1.20 这样的地址：无法向其发送任何内容。</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>没有摄像头。</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>摄像头已停止：%1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>摄像头已被拔出。</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1（您）</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>会议 #%1（由本机主持） - NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>会议 #%1（由“%2”主持） - NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [日期：%1 - 时间：%2] 会议 #%3 就绪 »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>会议 #%1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>%2 的会议 #%1</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- 会议已结束。</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- 您已将 %1 移出会议。</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>关闭该窗口将结束会议。是否继续？</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>要离开会议吗？</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 加入了会议</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 离开了会议。</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 拒绝参加会议</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>抱歉，会议窗口数量已达上限！</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>没有使用此配置文件运行的 NIMB-Chat。</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>正在运行的 NIMB-Chat 没有回应。</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>命令太长。</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>私聊(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>呼叫用户(&amp;B)</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>移除用户(&amp;M)</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>发送联系人(&amp;C)</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>邀请用户(&amp;N)</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>与“%1”私聊</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>呼叫“%1”</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>从列表中移除 %1 个用户</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>从列表中移除“%1”</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>向“%1”发送联系人(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>用 net send 向“%1”发送消息(&amp;N)</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>邀请用户“%1”(&amp;N)</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1（待读消息：%2）</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1，计算机 %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 已离线：您写的内容无法送达</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>正在确认 %1 是否在线：得到结果前不会打开窗口</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>不清楚 %1 是否在线：可用“重新扫描”询问，但这会让您的联系人看到您在线</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>不清楚 %1 是否在线：可用“重新扫描”询问</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>确定要移除计算机“%2”(%3) 上的用户“%1”吗？</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>确定要移除这 %1 个用户吗？</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>……（另有 %1 个）</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>确认移除用户</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>已选择 %1 个联系人</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>“%1”不是单台计算机的地址</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>名称为空</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 重复出现</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>此行必须为：%1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>引号不匹配</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>字段数不是三个</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>发往 %1 的内容，网络上的所有人都能收到</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 总是指使用它的计算机自身</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>%2 第 %1 行</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>；第 %1 行：%2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>；另有 %n 处</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1。未从此文件导入任何联系人。</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>从 %1 导入的联系人：%2；已存在：%3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>；已略去：您自己的地址</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>新联系人</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>已发送给 %1 的联系人：%2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>最后一条消息：%1 @ %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>无法写入注册表</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>联系人 (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>文件过大，不可能是联系人列表</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>%1 中的联系人：%2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>%1 中的联系人：%2；因他人无法连接而略去：%3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>正在向本机发送数据报。</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>正在检查防火墙。</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 已不是联系人。</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 不是 192.168.1.20 这样的地址：无法向其发送任何内容。</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>请移除该联系人，再用其地址重新添加。</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>未询问 %1：您处于隐身状态，询问会暴露您在线。</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>请先选择其他状态。</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>此计算机没有通往 %1 的网络。</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>请连接该联系人所在的网络。</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>未询问 %1，因为没有程序在监听应答。</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>请先解决端口问题。</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>正在等待 %1 应答。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat 被设定为仅在此计算机内运行：它使用环回网络。</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>未连接任何具有 IPv4 地址的网络。</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>请插好网线，或连接其他人所用的无线网络。</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>已连接，地址为 %1。</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>本机地址为 %1，但此计算机没有任何网卡使用该地址。</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>请更正 NIMBCHAT_ADDRESS，或连接对应的网络。</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>请连接网络，或在“工具 &gt; 选项”中选择其他本机地址。</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>本机地址为网卡 %2 的 %1，但在该网卡上找不到任何人：它只通往单台计算机，或此计算机内部运行的系统。</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>如果其他人在另一个网络上，请更正 NIMBCHAT_ADDRESS。</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>如果其他人在另一个网络上，请在“工具 &gt; 选项”中选择该网络的网卡作为本机地址。</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>本机地址为 %1，只有此计算机上的程序才能访问。</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>要与其他计算机通信，请在不设置 NIMBCHAT_ADDRESS 的情况下启动 NIMB-Chat。</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>选项中指定用作本机地址的网卡 %1 未连接；当前本机地址为网卡 %3 的 %2。</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>请连接该网卡，或在“工具 &gt; 选项”中选择其他本机地址。</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>本机地址为网卡 %2 的 %1。</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat 正在监听 UDP 端口 %1。</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>系统不允许 NIMB-Chat 使用端口 %1。</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>请在“工具 &gt; 选项”中选择大于 1023 的端口，并与其他人的端口一致。</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>没有程序在监听：此计算机没有所设的本机地址。</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>请连接具有该地址的网络；NIMB-Chat 每 5 秒重试一次。</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>端口 %1 已被程序 %2（进程 %3）占用。</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>请关闭该程序；NIMB-Chat 每 5 秒重试一次。</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>端口 %1 已被其他程序占用。</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>可用“sudo ss -ulpn sport = :%1”查看是哪个程序。</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat 未在端口 %1 上监听。</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat 每 5 秒重试一次；如果仍无效，请重新启动它。</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>NIMB-Chat 未运行，UDP 端口 %1 空闲可用。</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat 正在运行（进程 %1），并监听 UDP 端口 %2。</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>系统没有为等待读取的数据报提供缓冲区。</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>系统只能缓存 %1 KiB 等待读取的数据报：许多人同时应答时会丢失一部分。</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>“sudo sysctl -w net.core.rmem_max=4194304”可增大缓冲区。</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>系统可缓存 %1 KiB 等待读取的数据报。</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>发往本机 %1 的数据报已返回。</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>发往本机 %1 的数据报未在一秒内返回。</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>此计算机的防火墙连自身发出的数据报也拦截，或者该地址不属于此计算机。</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>未向本机发送数据报，因为没有程序在监听。</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>未向本机发送数据报，因为会被正在运行的实例收到：请使用该实例自带的网络诊断。</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>可以询问此计算机上的所有人。</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>没有可供询问所有人的网络。</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>请按地址添加其他人：“用户 &gt; 添加离线用户”。</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>发给所有人的询问可以送出：%1。</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>系统拒绝向所有人发送：%1。</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>此计算机的防火墙阻止其送出；请允许 UDP 发往该地址。</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>未发现此计算机有防火墙。</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>防火墙 %1 已启用，并允许 UDP 端口 %2 入站。</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>防火墙 %1 已启用，并阻止 UDP 端口 %2 入站：没有人能连接到您。</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>此命令可开放端口：%1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>防火墙 %1 已启用，UDP 端口 %2 似乎只对部分来源开放入站。</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>如果其他人无法连接到您，可用此命令对所有人开放端口：%1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>只有管理员才能查看防火墙是否阻止 UDP 端口 %1 入站。</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>可用“sudo nimb-chatctl doctor”查明。</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>此计算机可能有防火墙，但缺少能显示其全部规则的程序。</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>可用“sudo nft list ruleset”和“sudo iptables-legacy -S”查看规则（由软件包 nftables 和 iptables 提供）。</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>防火墙 %1 已启用；只有管理员才能查看它是否允许 UDP 端口 %2 入站。</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>网卡 %1 和 %2 在同一网络上；本机地址为您选定的那一个。</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>网卡 %1 和 %2 在同一网络上：其他人可能以其中任一地址看到您。</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>请停用其中之一，或在“工具 &gt; 选项”中选择其一作为本机地址。</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>本机地址属于 %1，它是 VPN 或其他通往单台计算机的线路。</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>如果其他人在局域网上，请在“工具 &gt; 选项”中选择局域网的网卡作为本机地址。</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>VPN 已连接 (%1)；本机地址不在其上。</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>没有 VPN，此计算机也没有两块网卡连接到同一网络。</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1 在 %2 毫秒后应答。</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 未应答，但地址为 %2 的计算机在线，或刚才还在线。</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>对方的防火墙可能拦截了 UDP，NIMB-Chat 可能未在对方运行，对方可能处于隐身状态，或者对方的程序还不认识您：请双方都使用“用户 &gt; 查找网络中的所有人”，并在对方计算机上也运行网络诊断。</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 未应答，您的网络上没有地址为 %2 的计算机。</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>它可能已关机、已更换地址、在另一个网络上，或者无线接入点将各设备相互隔离（客户端隔离）。</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 未应答。地址 %2 在另一个网络上，位于路由器之后或隧道的另一端。</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>途中的设备必须双向放行 UDP；此外，本网络上可能出现的问题，那边同样可能出现：防火墙拦截、程序未运行、用户隐身。</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 未应答。通往 %2 的线路使用本机地址 %3，但选项中指定了网卡 %4，从那边可能无法访问其地址 %5。</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>请在“工具 &gt; 选项”中选择“自动”或该网络的网卡作为本机地址。</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>私聊消息</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>会议消息</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>非命令</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>未知命令</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>不完整</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[正常]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[存疑]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[异常]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>入</translation>
    </message>
    <message>
        <source>out</source>
        <translation>出</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>启动以来丢弃的数据：</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>最近的数据报：</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>来自非联系人地址：%1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>不完整的命令：%1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>无处受理的命令：%1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>发往未打开的私聊窗口：%1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>发往不存在或无法以此方式访问的会议：%1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>不能成为联系人的地址：%1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>列表已满时的新联系人：%1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>待读消息过多时的消息：%1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>待处理邀请过多时的邀请：%1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>已存陌生人头像过多时的头像：%1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>列表已满时为新联系人让位的联系人：%1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>请求或发送过于频繁的头像和列表：%1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>无法发送的数据报：%1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>未及读取便丢失的数据报：%1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>发送最频繁者超出缓存上限的数据报：%1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>其中来自 %1：%2</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>笑脸</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>动物与自然</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>食物与饮料</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>旅行与地点</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>物品</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>旗帜</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>大笑</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>哭泣</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>微笑</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>难过</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>平静</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>吐舌</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>眨眼</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>眨眼吐舌</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>咧嘴笑</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>选择图片文件夹</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>选择要发送的文件夹</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>选择保存位置</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>选择要发送的文件</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>页面设置</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>%1 在提供后已被修改，因此其传输已终止。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 包含的文件过多，无法整体发送。</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>无法发送 %1：无法将其读取完整。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 等（另有 %2 项）</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>%2 中有 %1 项未包含在内：%3。不跟随链接，无法读取的内容不会发送。</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>无法发送 %1：它不是可读取的文件或文件夹。</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>“%1”中没有可显示的图片。</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>设置为空。</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>有一份保存于 %1 %2 的设置副本。要让 NIMB-Chat 使用该副本继续吗？未使用的设置将以其他名称保留。</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>有一份保存于 %1 %2 的设置副本；不指定昵称启动 NIMB-Chat 时会询问是否使用它。</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>聊天记录已损坏，因此新建了一份；其中收入了 %1 条仍可读取的消息。旧文件为 %2。</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>它由更新版本的 NIMB-Chat 写入</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>目前无法使用 %1 中的聊天记录（%2）；此前保留的内容未变。</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>%1 中的聊天记录在 NIMB-Chat 运行时被删除或替换：此后的内容将写入现在位于该处的文件。</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>目前只能读取 %1 中的聊天记录（%2）：在此情况改变之前，不会再保留新内容。</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>文件夹 %1 已不存在。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>与发送方的连接已中断。</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>无法连接到发送方。</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>发送方中断了连接，或给出了无法使用的应答。</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>发送方给出了无法使用的应答。</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>发送方已不再提供此文件。</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>图片过大，无法显示。</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>收到的内容与发送的内容不一致，已将其删除。</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>无法重命名 %1：%2。</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>%1 的可用空间不足。</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>%1 已没有可用空间。</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>无法继续写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1已收到的部分将保留。</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>无法发送 %1：此计算机没有可用的空闲端口。</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 - %3 邀请您参加会议</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>未选择用户！</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 当时不在线：此消息很可能未送达</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>等待 %1 上线后发送</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新消息</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [日期：%1 - 时间：%2] 就绪 »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 已改名为 %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 已上线 ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 已离线 ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 将状态改为“%2”  ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 呼叫您 ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 向您发送了联系人“%2”(%3) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- 收到不支持的命令 (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- 收到无法识别的数据  (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- 另收到来自 %1 的 %n 条无法识别的数据 ---</numerusform>
        </translation>
    </message>
    <message>
        <source>--- %1 ---</source>
        <translation>--- %1 ---</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>页面设置</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>打印预览</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>最近的文件 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>最近的文件 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>最近的文件 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>网络扫描(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>添加离线用户(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>查找网络中的所有人(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>聊天记录(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>导入联系人(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>导出联系人(&amp;E)...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>新建会议(&amp;N)...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>查看邀请(&amp;I)...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>显示日志窗口(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>传输(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>选项(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>目录(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>搜索帮助主题(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>使用手册(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>每日提示(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>网络诊断(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>键盘快捷键(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>用户(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>会议(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>私聊(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>呼叫用户(&amp;B)</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>邀请参加会议 #&amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>邀请参加会议 #&amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>邀请参加会议 #&amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>邀请参加会议 #&amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>邀请参加会议 #&amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>发送联系人(&amp;C)</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>移除用户(&amp;M)</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>邀请用户(&amp;N)</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>免打扰(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>不保留聊天记录(&amp;K)</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>发送文件(&amp;F)...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>NIMB-Chat: %1, %2</source>
        <translation>NIMB-Chat：%1，%2</translation>
    </message>
    <message>
        <source>%1, %2 unread</source>
        <translation>%1，%2 条未读</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>NIMB-Chat 上次退出时：%1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>已存的自定义状态“%1”开头没有图标编号，已被略去；NIMB-Chat 退出后它将彻底消失。</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- 此桌面不显示托盘图标：NIMB-Chat 将最小化而不是隐藏 ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>仍在传输的文件将被中断：%1。仍要退出 NIMB-Chat 吗？</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>程序退出期间收到的消息已丢失：%1 条。</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>程序退出时尚未阅读的消息已丢失：%1 条。</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>纯白色</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>偏白色</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>亮绿色</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>浅绿色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>接近绿色</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>偏绿色</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>接近黄色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>偏黄色</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>偏红色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>深红色</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>接近黑色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>消息未发送：未安装程序 smbclient。请安装软件包 smbclient（Debian、Ubuntu、Arch）或 samba-client（Fedora），然后重新发送。</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>消息未发送：无法写入临时文件（%1）。</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>消息未发送：无法启动 %1（%2）。</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>消息未发送：此系统没有“%1”命令。</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>“%1”既不是名称，也不是计算机或网络的地址，因此未询问任何人。</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>找不到“%1”的地址，因此未询问任何人。</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 的地址过多，无法逐一询问：最大范围为 /%2。</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>%1 条新消息</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 条新消息</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 邀请您参加会议</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 呼叫您</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1（会议 #%2）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>新消息</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>新消息</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1（未连接）</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>端口必须是 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>无法更改随桌面启动的设置：%1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>没有网络</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>网络已连接：本机地址为 %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>本机地址现为 %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>此计算机刚从睡眠中恢复：本机地址仍为 %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>网络已变化：本机地址仍为 %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>选项中指定用作本机地址的网卡 %1 未连接；连接之前，本机地址为 %2。</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>没有网络为此计算机提供 IPv4 地址，因此没有人能连接到您。一旦有可用的网络，NIMB-Chat 就会继续工作。</translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>隐身</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ...添加自定义状态...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>自动回复内容（忙碌时）</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>自动回复内容（离开时）</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>您处于隐身状态：重新扫描会让您的联系人看到您在线</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>询问所有联系人是否在线</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>最多保留 %1 个自定义状态：“%2”仅在 NIMB-Chat 退出前有效。</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 正在呼叫您...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 正在输入...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>此图片超过 5000 万像素，请选择较小的图片。</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>此图片已损坏。</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>此图片已损坏，或尺寸过大。</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>这不是 NIMB-Chat 可以读取的图片。</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>端口 %1 被占用</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>端口 %1 不可用</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>此计算机没有为 NIMB-Chat 指定的地址，因此没有人能通过端口 %1 连接到您。请更正 NIMBCHAT_ADDRESS，或连接对应的网络：NIMB-Chat 每 5 秒重试一次。</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>系统不允许 NIMB-Chat 使用端口 %1，因此没有人能连接到您。请选择大于 1023 的端口。</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>无法在端口 %1 上使用网络，因此没有人能连接到您。NIMB-Chat 每 5 秒重试一次。</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>端口 %1 已被其他程序占用，因此没有人能连接到您。请关闭该程序：NIMB-Chat 每 5 秒重试一次。</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>端口 %1 现已空闲：其他人可以连接到您。</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>其他人又可以通过端口 %1 连接到您了。</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 在线</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 离线</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 已离线</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 将状态改为“%2”</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [日期：%1 - 时间：%2] 就绪 »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 已离线：文件可在 %1 上线后发送。</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 - NIMB-Chat - 私聊窗口</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>该位置上已有的对象不是文件</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS 为“%1”，不是 IPv4 地址；NIMB-Chat 改为监听所有网络接口。</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>系统只为等待读取的数据报分配了 %1 KiB，而不是 %2 KiB：数据突增时可能丢失。</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>此计算机上没有可以打开 %1 的程序。</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- NIMB-Chat 上次退出时未能保存全部内容：已恢复当时的更改 ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- NIMB-Chat 上次退出时未能保存全部内容：除 %1 个损坏的值外，已恢复当时的更改 ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>正在运行的 NIMB-Chat 不认识命令“%1”。</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>没有名为“%1”或使用此地址的联系人。</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>有多个名为“%1”的联系人：请用地址指定其中一个（%2）。</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 不在线：未发送任何内容。</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>没有要发送的文字。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>“invisible”不能带文字。</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>没有状态“%1”：可用的有 online、busy、away 和 invisible。</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>一条消息最多 %1 个字符，而这条超出了：未发送任何内容。</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>正在运行的 NIMB-Chat 仍在等待输入昵称。</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>命令太长。</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>……（另有 %1 行）</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>……（另有 %1 个字符）</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 同时从 %2 和 %3 应答，只显示一次</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>此计算机没有通往 %1 的网络，因此未询问任何人。</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>正在询问谁在线：%1</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>已停止，此前询问了 %1 个地址，共 %2 个</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>未询问任何人：您处于隐身状态，询问会让所有人知道您在线</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>无法询问任何人：未连接网络</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>%1 上的所有人</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>不再询问任何人：您处于隐身状态</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 是您自己的地址：发往此处的内容，其他人收不到</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>无人应答：未连接网络，因此只询问了此计算机</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>无人应答：可能没有人在线，可能被防火墙拦截，也可能网络将各计算机相互隔离；%1 可查明原因</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>帮助 &gt; 网络诊断...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>%1 人应答：%2；新增 %3 人</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>已存的设置 %1 不能为“%2”；改用 %3。</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>既不是节，也不是带值的键</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>节“%2”中没有键“%1”</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1：其他无意义的行：%2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1，第 %2 行：%3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>文件太大</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>文件不是 UTF-8 编码</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>其他程序正在使用该文件</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>文件已损坏或内容不符</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>文件已被移动或替换</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>文件或其所在文件夹为只读</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>未能将设置保存到 %1（%2），因此上次保存之后的更改不会保留；此前保存的内容未变。</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>目前无法将更改保存到 %1（%2），如果 NIMB-Chat 在能够保存之前退出，这些更改将会丢失。</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>无法创建设置文件夹 %1（%2），因此程序以默认设置启动，且不保存任何设置。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>无法创建设置文件 %1（%2），因此程序以默认设置启动，且不保存任何设置。</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>无法读取 %1 中的设置（%2），因此程序以默认设置启动，并保持该文件不变。</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>无法修改 %1 中的设置（%2），因此程序退出后您的更改将会丢失。</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>程序启动时无法读取这些设置，保存会使其丢失</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>NIMB-Chat 上次启动时设置已损坏或为空。</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>%1 中的部分设置已损坏（%2），可能与保存时不同。</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>副本 %1 无法替代设置（%2），因此程序将不使用这些设置继续运行。</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>设置已保存，但无法更新其在 %1 中的副本（%2）。</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>每日提示 - 提示 #%1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>没有可显示的提示：随程序提供的文件 TOTD.txt 缺失或无法读取。</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>每日提示</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>自动回复内容</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>恢复</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>无法读取 %1 中的设置，因此改用默认设置：%2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>查找联系人 (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>查找联系人</translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>away</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>尚不清楚</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>%1 条待发送</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>%1 条未读</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>昵称</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>私聊窗口</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>头像编号</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>免打扰</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>您的列表中还没有人。单击一下即可询问网络上的所有人。</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>查找网络中的所有人</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>没有名为“%1”的联系人</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>会话已清空。</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>表情</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>表情和 emoji (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>日期时间</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>消息长度</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>超出长度的内容</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>未保留聊天记录。</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>发送文件</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>其余内容已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>发送文件(&amp;E)...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>发送文件夹(&amp;D)...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>图片 %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>无法发送图片：没有足够的空间存放它。</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>已粘贴一张图片 (%1 × %2)。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>一条消息最多 %1 个字符；您粘贴的内容有最后 %2 个字符未能放入。</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> 是否保留：%1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>保留一年</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>永久保留</translation>
    </message>
    <message>
        <source>no</source>
        <translation>不保留</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>不发送</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>发送文件；单击箭头或按向下键可发送文件夹</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>此前的文件问题：%1 个。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>复制其余内容</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>回复</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>NIMBChat 通知</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>（另有 %1 条）</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>最近使用</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiPicker</name>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Find an emoji</source>
        <translation>查找 emoji</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>没有此名称的 emoji。请换一个词试试。</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>表情</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>此 NIMB-Chat 构建时未包含发送文件的功能。</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>一次最多发送 %1 个文件：请将更多文件放入一个文件夹后再发送。</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>最多可同时提供 %1 个文件：请停止其中一些，位置：工具 &gt; 传输...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>这里没有可以接收文件的人。</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>文件在传输途中未加密：能够监听此网络的人都可以读取。</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>已过期</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>没有在线的接收者</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>For</source>
        <translation>接收者</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>有效期至</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>正在准备</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>已向 %2 发送 %1%</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>已下载：%1 次</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>尚未下载</translation>
    </message>
    <message>
        <source>over</source>
        <translation>已结束</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>已结束：%1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>被下载一次</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>手动停止</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>有文件通过地址 %1 提供，但此计算机已没有该地址：在重新获得该地址或您重新发送之前，没有人能下载这些文件。</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>通过地址 %1 提供（此计算机已没有该地址）</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>其他文件：%1 个。</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>全部保存...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>将此处提供的所有文件保存到一个文件夹中</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>在此处显示</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>下载图片并在此处显示，但不保存</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>隐藏此行；仍可在“工具 &gt; 传输...”中找到</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1，来自 %2</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>保存 %1</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>此计算机上没有可以打开 %1 的程序。</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>这不是 NIMB-Chat 可以读取的图片。</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>图片 %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>此图片超过 %1 百万像素，过大而无法显示。请保存后查看。</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>在此会话中查找；按 Ctrl+H 搜索全部聊天记录</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>上一个 (Enter)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>下一个 (Shift+Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>关闭 (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>搜索全部聊天记录</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>打开聊天记录窗口</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>正在查找...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1，%2，在“%3”中</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>nimb::InvitationList</name>
    <message>
        <source>%1 minute(s)</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>已自动拒绝</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>邀请</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>到达时间</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>已等待</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>消息区字体</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>字体</translation>
    </message>
    <message>
        <source> points</source>
        <translation> 磅</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>粗体(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Ann：早上好！</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>字体(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>字号(&amp;S)：</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1（未安装）</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>此计算机上没有可以打开 %1 的程序。</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>转到最新一行</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n 行新内容</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>部分待发送的消息无法读取，已丢失。</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>已有 %1 条消息等待发送，无法再添加。</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- 等待发送给 %1 的一条消息未发送，因为对方已不是联系人 ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- 等待发送给 %1 的消息已发送 ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- 等待发送给 %2 的 %1 条消息已发送 ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>您写给 %1 (%2) 的内容正等待发送到 %3。该地址现在属于 %4 (%5)。

要发送给 %4 吗？</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- 您于 %2 写给 %1 的内容未能在七天内发送 ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>昵称</translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>不清楚是否在线</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>已不是联系人</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>等待中：%1 条</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>待发送：%1 条</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1；%2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>不清楚 %1 是否在线：您写的内容将在 %1 上线后发送</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>不清楚 %1 是否在线</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>不清楚 %1 是否在线：您写的内容可能无法送达</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 已离线：您写的内容将在 %1 上线后发送</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 已离线</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 已离线：您写的内容无法送达</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 已不是联系人：来自对方的内容不会显示</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>取消稍后发送</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>%1 上线后发送</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>此会话中等待的内容将不再发送，现在写的内容也不会等待发送</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>您已写但未送达的内容将保留，并在对方上线后重新发送；现在写的内容也一样</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>状态(&amp;S)：</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>文字(&amp;X)：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>待接收</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>等待其他传输</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1%，共 %2，每秒 %3</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1%，共 %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>已暂停（%1%）</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>正在校验</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>已保存并通过校验</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>已保存；发送方未提供校验信息</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>From</source>
        <translation>来自</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 已不再提供此文件。</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>正在校验已收到的部分：%1%</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>文本 (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>网页 (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>复制(&amp;C)	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>全选(&amp;A)	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>原始大小(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>查找(&amp;F)...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>会话另存为(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>复制链接地址(&amp;L)</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>（仍在查找建议）</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>（无建议）</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>关闭(&amp;O)</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>此词典的文件无法读取或已损坏</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>添加到词典</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>拼写检查</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>昵称</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>NIMB-Chat 退出时尚未接收完的文件：%2 个；可通过 %1 继续接收</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>工具 &gt; 传输...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>关于 NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>NIMB-Chat 的图片</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>一款基于 UDP/IP 的简易即时通讯程序，专为小型局域网设计</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>采用 MIT 许可证的自由软件，不提供任何担保。所有发送的内容均未加密：网络上的任何人都可以读取。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>系统信息(&amp;S)...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>目前无法获取系统信息</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>添加离线用户</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>输入用户信息</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>解析</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>昵称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>计算机(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>IP 地址(&amp;I)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>会议邀请 - NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>邀请</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>还没有人邀请您参加会议。您可以自己发起会议，并通过联系人的菜单邀请他们。</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>发起会议</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>接受(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>拒绝(&amp;D)</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>全部拒绝(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清理(&amp;C)</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>移除已失效的邀请</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>自动拒绝前等待</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟数</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>分钟</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>成员</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>刷新列表</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>移出用户</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>显示/隐藏成员</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>还没有其他人。</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>邀请联系人...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>邀请其他联系人...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>没有其他在线的联系人</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>头像</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>显示/隐藏头像</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>存疑</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>异常</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat - 网络诊断</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>重新检查(&amp;A)</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>复制报告(&amp;R)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>此联系人有应答吗(&amp;D)？</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>要询问的联系人</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>您的列表中还没有人</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>询问(&amp;K)</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>最近的数据报</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>尚未发送或接收任何数据。</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>显示用户所写的内容(&amp;P)</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>未丢弃任何数据。</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>已丢弃：</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat - 聊天记录</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>在所选范围内搜索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>第一天</translation>
    </message>
    <message>
        <source>From</source>
        <translation>起始日期</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>最后一天</translation>
    </message>
    <message>
        <source>To</source>
        <translation>结束日期</translation>
    </message>
    <message>
        <source>from</source>
        <translation>从</translation>
    </message>
    <message>
        <source>to</source>
        <translation>到</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>删除(&amp;R)...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>导出已停止。</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>所有会话</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>To be sent (%1)</source>
        <translation>待发送 (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>您写给不在线联系人的内容</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>未发送给 %1</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>待发送给 %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>还没有聊天记录。可在选项中设置是否保留。</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>没有符合条件的内容。</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>文本 (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>网页 (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>NIMB-Chat 聊天记录</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>已写入消息：%1 条。</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>目前已写入消息：%1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>所选消息(&amp;M)</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>要永久删除所选消息吗？</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>所选会话(&amp;C)</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>要永久删除“%1”的全部聊天记录吗？</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>所选日期(&amp;D)</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>要永久删除所选日期的全部聊天记录吗？</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>要永久删除所有会话的全部聊天记录吗？</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>要删除所选消息吗？它将不会发送。</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>正在删除...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>未删除任何内容：无法写入聊天记录。</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>要永久删除所有会话的全部聊天记录吗？待发送的消息会保留，并将照常发送。</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat - 通过 net send 邀请</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>发送(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>标准文本(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>自定义文本(&amp;O)</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>自定义文本</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>发送到计算机 %2，收件人 %1</translation>
    </message>
</context>
<context>
    <name>nimb::frmLogin</name>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Welcome to NIMB-Chat!</source>
        <translation>欢迎使用 NIMB-Chat！</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>请为本次使用选择一个昵称</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>昵称(&amp;N)：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>nimb::frmMain</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>已清空。</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>联系人</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>联系人的详细信息</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>昵称和状态</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>用户详细信息</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>重新扫描(&amp;R)</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>呼叫静音</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>用户详情(&amp;D)</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>所选联系人</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>我的状态</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>自动回复</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>自动回复内容...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>已询问的地址</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>不再询问其他人</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat - 网络扫描</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>扫描/搜索网络中新的 NIMB-Chat 用户</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>计算机名/IP 地址(&amp;W)：</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>此计算机某个网络上的所有人</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>某网络上的所有人...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>注意：可使用广播 IP 扫描整个网络（例如，您的 IP 地址为 192.168.1.1、子网掩码为 255.255.255.0 时，广播 IP 地址为 192.168.1.255）</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>此计算机目前未连接任何网络。</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>网络诊断(&amp;D)...</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNotify</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>NIMBChat 通知</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>发生的事件</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>不在私聊窗口中显示状态变化消息(&amp;S)</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>发出呼叫时不播放声音(&amp;L)</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>收到呼叫时不播放声音(&amp;R)</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>私聊窗口置顶显示(&amp;T)</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>以最小化方式打开私聊窗口（默认）(&amp;M)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>关闭私聊窗口时仅将其隐藏并保留消息(&amp;K)</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>禁用通知窗口(&amp;N)</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>选中后不再滑出任何通知，包括联系人上下线和收到消息</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>默认禁用 LiveType(&amp;D)</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>单击关闭按钮时隐藏主窗口（可从托盘图标恢复）(&amp;C)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>有消息和邀请时通知(&amp;V)</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>当其窗口未处于活动状态且您不忙碌时通知；免打扰的联系人不会通知</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>显示消息内容(&amp;H)</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>收到消息时播放声音(&amp;W)</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>有人上线时播放声音(&amp;B)</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>每次收到邀请时播放声音(&amp;Y)</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat - 选项</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>You</source>
        <translation>个人</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>昵称：</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>您的自定义状态</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>自定义状态：</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>声音与通知</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>窗口不在前台时收到的内容</translation>
    </message>
    <message>
        <source>History</source>
        <translation>聊天记录</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>保留聊天记录</translation>
    </message>
    <message>
        <source>no</source>
        <translation>不保留</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>保留一年</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>永久保留</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>保留聊天记录：</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>私聊窗口</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>主窗口与网络</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>UDP 端口(&amp;P)：</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>本机地址</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>本机地址(&amp;U)：</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>与桌面相同</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>更改将在下次启动时生效。</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>消息区字体</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>字体(&amp;F)...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>新窗口将使用此字体；已打开的窗口保持不变。</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>您的头像</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>无头像(&amp;A)</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>图片(&amp;I)：</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>动态图片(&amp;G)：</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>加载(&amp;O)...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>图片来源</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>来自摄像头</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>来自文件夹</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>选择(&amp;E)...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>也可以将图片拖放或粘贴到这里。动态图片在 NIMB-Chat 退出后失效；图片会保留。</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>询问我</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>由环境变量 NIMBCHAT_ADDRESS 指定</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1，%2 磅</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>桌面字体：%1，%2 磅</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>图像 (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>随桌面启动</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>每次登录时以您的昵称最小化启动</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat - 私聊</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>对方正在输入的内容</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>呼叫！</translation>
    </message>
    <message>
        <source>(CTRL+G)</source>
        <translation>(CTRL+G)</translation>
    </message>
    <message>
        <source>LiveType!</source>
        <translation>LiveType!</translation>
    </message>
    <message>
        <source>The other one sees what you type before you send it</source>
        <translation>您输入的内容在发送前就会显示给对方</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>心情</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>头像</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>对方的头像</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>您的心情（未指定）</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>对方的心情（未指定）</translation>
    </message>
    <message>
        <source>You</source>
        <translation>您</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>对方</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>对方的地址</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>您的心情（%1）</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>对方的心情（%1）</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat - 向“%1”发送联系人</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>添加选定的联系人</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>添加所有联系人</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>撤回选定的联系人</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>撤回所有联系人</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>选择要发送的联系人</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>可发送的联系人</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>没有更多可发送的联系人</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>要发送的联系人</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>移到此处的联系人将被发送</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>发送(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>打开使用手册中与当前窗口对应的页面</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>查找联系人；直接在列表中输入效果相同</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>查看聊天记录</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>打开所选联系人的私聊窗口</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>移除所选联系人（会先询问）</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>退出联系人查找</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>发送消息</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>换行</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>输入框为空时：调回上一条消息</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>选择 emoji</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>呼叫（私聊窗口）</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>退出查找、表情或 emoji</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>在消息区中查找</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>复制选定内容</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>放大文字</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>缩小文字</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>文字恢复原始大小</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>所有窗口</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>主窗口</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>消息区</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat - 键盘快捷键</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>您知道吗？</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat 是采用 MIT 许可证的自由软件，欢迎您把它分享给网络中的每个人。</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>启动时显示提示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>下一条提示(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat - 传输</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>您提供的文件（NIMB-Chat 运行期间有效）</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>您提供的文件</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>没有提供任何文件。可将文件或文件夹拖放到会话窗口，或单击其中的回形针按钮。</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>提供的有效期</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>24 小时内</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>被下载一次为止</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>手动停止为止</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>他人提供给您的文件</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>自 NIMB-Chat 启动以来，没有人向您提供文件。</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>保存(&amp;A)...</translation>
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
        <source>&amp;Open Folder</source>
        <translation>打开文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>此计算机上没有可以打开 %1 的程序。</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>全部保存(&amp;L)...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>将提供给您且尚未下载的所有文件保存到一个文件夹中</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>全部保存 (%1)(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>放弃(&amp;D)...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>放弃该文件并删除已收到的部分</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>要放弃“%1”吗？已收到的部分（%2）将从磁盘中删除。</translation>
    </message>
</context>
</TS>
