<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can&apos;t add yourself...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by &apos;%2&apos;) - NIMB-Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Private chat with &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzz &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &apos;%1&apos; from the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send &amp;contacts to &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Net send message to &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nvite user &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whether %1 is there is not known: &quot;Rescan&quot; asks, and shows you to your contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whether %1 is there is not known: &quot;Rescan&quot; asks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user &apos;%1&apos; on workstation &apos;%2&apos; (%3) ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>&quot;%1&quot; is not the address of one computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;sudo ss -ulpn sport = :%1&quot; shows which one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;sudo sysctl -w net.core.rmem_max=4194304&quot; lets it keep more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;sudo nimb-chatctl doctor&quot; tells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;sudo nft list ruleset&quot; and &quot;sudo iptables-legacy -S&quot; show them, of the packages nftables and iptables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose &quot;automatic&quot; or the card of that network as your own address in Tools, Options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>private message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>conference message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[...]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>People</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flags</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crying face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sad face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>winking face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is too little room in %1. What has come is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no room any more in %1. What has come is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2. What has come is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed his state to &apos;%2&apos;  ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sent you the contact &apos;%2&apos; (%3) ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>--- %1 ---</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>NIMB-Chat: %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 unread</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored personalized state &quot;%1&quot; begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: this system has no &quot;net&quot; command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>&quot;%1&quot; is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No address was found for &quot;%1&quot;, so nobody was asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: &quot;%2&quot; lasts until NIMB-Chat ends.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed his state to &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is &quot;%1&quot;, which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be &quot;%2&quot;; %3 is used instead.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source> &lt;a href=&quot;undo&quot;&gt;Bring it back&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody here is called &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Keep them: &lt;a href=&quot;year&quot;&gt;for a year&lt;/a&gt; / &lt;a href=&quot;ever&quot;&gt;for ever&lt;/a&gt; / &lt;a href=&quot;no&quot;&gt;no&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> &lt;a href=&quot;send&quot;&gt;Send it&lt;/a&gt; / &lt;a href=&quot;no&quot;&gt;leave it&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> &lt;a href=&quot;close&quot;&gt;Close&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> &lt;a href=&quot;rest&quot;&gt;Copy the rest&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::EmojiPicker</name>
    <message>
        <source>Emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find an emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> &lt;a href=&quot;all&quot;&gt;Show all&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aa</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the history&apos;s window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::InvitationList</name>
    <message>
        <source>%1 minute(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat&apos;s picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it&apos;s been intended for use on a small LAN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To be sent (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase all that is kept of &quot;%1&quot; for good?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmLogin</name>
    <message>
        <source>NIMB-Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to NIMB-Chat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmMain</name>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let&apos;s say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmNotify</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happened</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for a year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for ever</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the desktop&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ask me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the desktop&apos;s font: %1, %2 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(CTRL+G)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LiveType!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The other one sees what you type before you send it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
