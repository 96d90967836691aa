<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>Bitte alle Felder ausfüllen</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>Sie können sich nicht selbst hinzufügen...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>Die IP-Adresse gehört schon einem anderen Benutzer</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>Das ist nicht die Adresse eines einzelnen Computers: Was dorthin gesendet wird, empfangen alle im Netzwerk.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>Diese Adresse kann nicht gespeichert werden: Sie kennzeichnet das Ende der gespeicherten Liste.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>Das ist keine Adresse wie 192.168.1.20: Dorthin kann nichts gesendet werden.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>Es ist keine Kamera vorhanden.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>Die Kamera liefert keine Bilder mehr: %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>Die Kamera wurde getrennt.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (Sie)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>Konferenz %1 (von Ihnen) – NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>Konferenz %1 (von „%2“) – NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [heute: %1 – jetzt: %2] Konferenz %3 bereit »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>Konferenz %1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>Konferenz %1 von %2</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- Diese Konferenz ist beendet.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- Sie haben %1 aus der Konferenz entfernt.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>Wenn Sie dieses Fenster schließen, endet die Konferenz. Fortfahren?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>Konferenz verlassen?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 nimmt jetzt an der Konferenz teil</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 hat die Konferenz verlassen.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 hat die Teilnahme an der Konferenz abgelehnt</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>Es ist leider kein Konferenzfenster mehr frei.</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>NIMB-Chat läuft nicht mit diesem Profil.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>Das laufende NIMB-Chat antwortet nicht.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Der Befehl ist zu lang.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Privater Chat</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Benutzer &amp;anstupsen</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>Benutzer &amp;entfernen</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>&amp;Kontakte senden</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>Benutzer e&amp;inladen</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>Privater Chat mit „%1“</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>„%1“ anstupsen</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>%1 Benutzer aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>„%1“ aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>&amp;Kontakte an „%1“ senden</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>Ne&amp;t-Send-Nachricht an „%1“</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>„%1“ e&amp;inladen</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (ungelesene Nachrichten: %2)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1 auf %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 ist offline: Was Sie schreiben, kommt nicht an</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>ob %1 da ist, wird gerade geprüft: Vorher öffnet sich kein Fenster</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>ob %1 da ist, ist nicht bekannt: „Neu abfragen“ klärt es und zeigt Ihren Kontakten, dass Sie da sind</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>ob %1 da ist, ist nicht bekannt: „Neu abfragen“ klärt es</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>Möchten Sie den Benutzer „%1“ auf der Arbeitsstation „%2“ (%3) wirklich entfernen?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>Möchten Sie diese %1 Benutzer wirklich entfernen?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (%1 weitere)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>Entfernen bestätigen</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>%1 Kontakte ausgewählt</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>„%1“ ist nicht die Adresse eines einzelnen Computers</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>ein Name ist leer</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 kam schon vorher vor</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>nicht in UTF-8 geschrieben</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>muss so lauten: %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>die Anführungszeichen passen nicht zusammen</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>es sind nicht drei Felder</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>was an %1 gesendet wird, empfangen alle im Netzwerk</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 bezeichnet immer den eigenen Computer</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Zeile %1 von %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>; Zeile %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; %n weiterer Fehler</numerusform>
            <numerusform>; %n weitere Fehler</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1. Aus dieser Datei wurde kein Kontakt übernommen.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>aus %1 übernommene Kontakte: %2; schon vorhanden: %3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>; ausgelassen: Ihre eigene Adresse</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>die neuen Kontakte</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>an %1 gesendete Kontakte: %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>Letzte Nachricht: %1, %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>in die Registrierung kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>Kontakte (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>für eine Kontaktliste ist die Datei zu groß</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>Kontakte in %1: %2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>Kontakte in %1: %2; ausgelassen, da für andere nicht erreichbar: %3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>Ein Datagramm ist unterwegs zu Ihnen selbst.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>Es wird nach einer Firewall gesucht.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 ist kein Kontakt mehr.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 ist keine Adresse wie 192.168.1.20: Dorthin kann nichts gesendet werden.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>Entfernen Sie den Kontakt und fügen Sie ihn mit seiner Adresse hinzu.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>%1 wurde nicht gefragt: Sie sind unsichtbar, und die Anfrage würde zeigen, dass Sie da sind.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>Wählen Sie zuerst einen anderen Status.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>Kein Netzwerk dieses Computers führt zu %1.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>Verbinden Sie das Netzwerk, in dem sich der Kontakt befindet.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>%1 wurde nicht gefragt, denn es wird auf keine Antwort gelauscht.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>Beheben Sie zuerst das Problem mit dem Port.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>Es wird auf eine Antwort von %1 gewartet.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat soll auf diesem Computer bleiben: Es benutzt das Loopback-Netzwerk.</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>Es ist kein Netzwerk mit IPv4-Adresse verbunden.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>Stecken Sie das Kabel ein oder verbinden Sie sich mit dem WLAN, das die anderen benutzen.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Verbunden als %1.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>Ihre Adresse ist %1, doch keine Netzwerkkarte dieses Computers hat sie.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>Berichtigen Sie NIMBCHAT_ADDRESS oder verbinden Sie dieses Netzwerk.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>Verbinden Sie ein Netzwerk oder wählen Sie unter „Extras, Optionen“ eine andere eigene Adresse.</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>Ihre Adresse ist %1 (Karte %2), und dort ist niemand zu finden: Die Karte führt zu einem einzelnen Gerät oder zu etwas, das auf diesem Computer läuft.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>Wenn die anderen in einem anderen Netzwerk sind, berichtigen Sie NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>Wenn die anderen in einem anderen Netzwerk sind, wählen Sie unter „Extras, Optionen“ dessen Karte als eigene Adresse.</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>Ihre Adresse ist %1; nur Programme auf diesem Computer können sie erreichen.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>Starten Sie NIMB-Chat ohne NIMBCHAT_ADDRESS, um andere Computer zu erreichen.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>Die Netzwerkkarte %1, deren Adresse laut Optionen Ihre ist, ist nicht verbunden; Ihre Adresse ist %2 (Karte %3).</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>Verbinden Sie diese Karte oder wählen Sie unter „Extras, Optionen“ eine andere eigene Adresse.</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>Ihre Adresse ist %1 (Karte %2).</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat lauscht auf UDP-Port %1.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>Das System lässt NIMB-Chat den Port %1 nicht benutzen.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>Wählen Sie unter „Extras, Optionen“ einen Port über 1023, und zwar denselben wie alle anderen.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>Es wird nicht gelauscht: Dieser Computer hat Ihre Adresse nicht.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Verbinden Sie das Netzwerk, das sie hat; NIMB-Chat versucht es alle 5 Sekunden erneut.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>Port %1 wird vom Programm %2 (Prozess %3) benutzt.</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Schließen Sie dieses Programm; NIMB-Chat versucht es alle 5 Sekunden erneut.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>Port %1 wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>„sudo ss -ulpn sport = :%1“ zeigt, von welchem.</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat lauscht nicht auf Port %1.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat versucht es alle 5 Sekunden erneut; hilft das nicht, starten Sie es neu.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>NIMB-Chat läuft nicht; der UDP-Port %1 ist dafür frei.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat läuft (Prozess %1) und lauscht auf UDP-Port %2.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>Das System bietet keinen Platz für wartende Datagramme.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>Das System hebt nur %1 KiB an wartenden Datagrammen auf: Wenn viele gleichzeitig antworten, gehen einige verloren.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>Mit „sudo sysctl -w net.core.rmem_max=4194304“ hebt es mehr auf.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>Das System hebt %1 KiB an wartenden Datagrammen auf.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>Ein Datagramm an %1, also an Sie selbst, kam zurück.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>Ein Datagramm an %1, also an Sie selbst, kam nicht innerhalb einer Sekunde zurück.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>Eine Firewall auf diesem Computer blockiert selbst seine eigenen Datagramme, oder die Adresse gehört nicht zu ihm.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>An Sie selbst wurde kein Datagramm gesendet, denn es wird nicht gelauscht.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>An Sie selbst wurde kein Datagramm gesendet, denn das schon laufende Programm bekäme es: Dessen Netzwerkdoktor prüft das.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>Alle auf diesem Computer können gefragt werden.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>Es gibt kein Netzwerk, in dem alle gefragt werden können.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>Fügen Sie die anderen mit ihren Adressen hinzu: „Benutzer, Offline-Benutzer hinzufügen“.</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>Eine Anfrage an alle geht hinaus: %1.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>Das System sendet nicht an alle: %1.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>Eine Firewall auf diesem Computer hält die Anfrage zurück; lassen Sie UDP zu dieser Adresse hinaus.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>Auf diesem Computer ist keine Firewall zu sehen.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>Die Firewall %1 ist aktiv und lässt den UDP-Port %2 herein.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>Die Firewall %1 ist aktiv und sperrt den UDP-Port %2: Niemand erreicht Sie.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>Das öffnet den Port: %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>Die Firewall %1 ist aktiv und lässt den UDP-Port %2 anscheinend für manche herein und für andere nicht.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>Falls andere Sie nicht erreichen, öffnet das den Port für alle: %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>Nur der Systemverwalter darf sehen, ob eine Firewall den UDP-Port %1 sperrt.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>„sudo nimb-chatctl doctor“ gibt Auskunft.</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>Dieser Computer hat vielleicht eine Firewall, aber kein Programm ist vorhanden, das alle ihre Regeln zeigt.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>„sudo nft list ruleset“ und „sudo iptables-legacy -S“ aus den Paketen nftables und iptables zeigen sie.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>Die Firewall %1 ist aktiv; nur der Systemverwalter darf sehen, ob sie den UDP-Port %2 hereinlässt.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>Die Karten %1 und %2 sind im selben Netzwerk; Ihre Adresse ist die ausgewählte.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>Die Karten %1 und %2 sind im selben Netzwerk: Andere sehen Sie womöglich unter einer der beiden Adressen.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>Schalten Sie eine davon aus oder wählen Sie unter „Extras, Optionen“ eine als eigene Adresse.</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>Ihre Adresse ist die von %1, einem VPN oder einer anderen Verbindung zu einem einzelnen Gerät.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>Wenn die anderen im lokalen Netzwerk sind, wählen Sie unter „Extras, Optionen“ dessen Karte als eigene Adresse.</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>Ein VPN ist aktiv (%1); Ihre Adresse gehört nicht dazu.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>Es gibt kein VPN, und in keinem Netzwerk hat dieser Computer zwei Karten.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1 hat nach %2 ms geantwortet.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 hat nicht geantwortet, aber der Computer unter %2 ist da oder war es bis eben.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>Vielleicht blockiert dort eine Firewall UDP, NIMB-Chat läuft dort nicht, der Benutzer ist unsichtbar oder das Programm dort kennt Sie noch nicht: Rufen Sie auf beiden Seiten „Benutzer, Alle hier finden“ auf. Starten Sie den Netzwerkdoktor auch dort.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 hat nicht geantwortet, und kein Computer in Ihrem Netzwerk hat die Adresse %2.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>Der Computer ist aus, hat inzwischen eine andere Adresse oder ist in einem anderen Netzwerk, oder der Access Point trennt seine Geräte voneinander (Client-Isolation).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 hat nicht geantwortet. Die Adresse %2 ist in einem anderen Netzwerk, hinter einem Router oder am anderen Ende eines Tunnels.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>Was dorthin führt, muss UDP in beide Richtungen durchlassen; außerdem kann dort dieselbe Ursache vorliegen wie im eigenen Netzwerk: eine Firewall, ein nicht gestartetes Programm, ein unsichtbarer Benutzer.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 hat nicht geantwortet. Der Weg zu %2 führt über Ihre Adresse %3, aber die Optionen nennen die Karte %4, deren Adresse %5 von dort vielleicht nicht erreichbar ist.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>Wählen Sie „automatisch“ oder die Karte dieses Netzwerks unter „Extras, Optionen“ als eigene Adresse.</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>private Nachricht</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>Konferenznachricht</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>kein Befehl</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>unbekannter Befehl</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>unvollständig</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[in Ordnung]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[fraglich]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[FEHLER]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>eingehend</translation>
    </message>
    <message>
        <source>out</source>
        <translation>ausgehend</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>Seit dem Start verworfen:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>Die letzten Datagramme:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>Von Adressen, die keine Kontakte sind: %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>Unvollständige Befehle: %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>Befehle, die hier nichts annimmt: %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>Für nicht geöffnete private Chatfenster: %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>Für Konferenzen, die es nicht gibt oder die so nicht zugänglich sind: %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>Adressen, die keine Kontakte werden können: %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>Neue Kontakte bei voller Liste: %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>Nachrichten, als schon zu viele ungelesen waren: %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>Einladungen, als schon zu viele warteten: %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>Avatare, als schon die zu vieler Fremder gespeichert waren: %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>Kontakte, die in einer vollen Liste Platz gemacht haben: %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>Zu oft angeforderte oder gesendete Avatare und Listen: %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>Datagramme, die nicht gesendet werden konnten: %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>Datagramme, die vor dem Lesen verloren gingen: %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>Überzählige Datagramme der aktivsten Absender: %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>davon von %1: %2</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>Smileys</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>Tiere und Natur</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>Essen und Trinken</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>Reisen und Orte</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Gegenstände</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Flaggen</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>lachendes Gesicht</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>weinendes Gesicht</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>lächelndes Gesicht</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>trauriges Gesicht</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>neutrales Gesicht</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>Gesicht mit herausgestreckter Zunge</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>zwinkerndes Gesicht</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>zwinkerndes Gesicht mit herausgestreckter Zunge</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>grinsendes Gesicht</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>Ordner mit Bildern wählen</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>Ordner zum Senden wählen</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>Ordner zum Speichern wählen</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>Dateien zum Senden wählen</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>%1 hat sich seit dem Anbieten geändert, daher wurde die Übertragung beendet.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 enthält zu viele Dateien, um als Ganzes gesendet zu werden.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>%1 kann nicht gesendet werden: Es lässt sich nicht bis zum Ende lesen.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>Aus %2 ausgelassen (%1): %3. Verknüpfungen wird nicht gefolgt, und was sich nicht lesen lässt, wird nicht gesendet.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>%1 kann nicht gesendet werden: Das ist keine lesbare Datei und kein lesbarer Ordner.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>In „%1“ gibt es kein anzeigbares Bild.</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>Die Einstellungen sind leer.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>Es gibt eine Kopie der Einstellungen, gespeichert am %1 um %2. Soll NIMB-Chat mit dieser Kopie weiterarbeiten? Was nicht benutzt wird, bleibt unter einem anderen Namen erhalten.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>Es gibt eine Kopie der Einstellungen, gespeichert am %1 um %2; NIMB-Chat bietet sie an, wenn es ohne Spitznamen gestartet wird.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>Der Verlauf war beschädigt, daher wurde ein neuer begonnen; noch lesbare Nachrichten, die übernommen wurden: %1. Die alte Datei ist %2.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>eine neuere Version von NIMB-Chat hat ihn geschrieben</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>Der Verlauf in %1 kann zurzeit nicht benutzt werden (%2); was bisher aufbewahrt wurde, ist unverändert.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>Der Verlauf in %1 wurde entfernt oder ersetzt, während NIMB-Chat läuft: Was von jetzt an gesagt wird, kommt in den, der jetzt dort liegt.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>Der Verlauf in %1 kann zurzeit nur gelesen werden (%2): Bis sich das ändert, wird nichts mehr aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>Der Ordner %1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>Die Verbindung zum Absender ist abgebrochen.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>Der Absender ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>Der Absender hat abgebrochen oder eine unbrauchbare Antwort gegeben.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>Der Absender hat eine unbrauchbare Antwort gegeben.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>Der Absender bietet die Datei nicht mehr an.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>Das Bild ist zu groß, um angezeigt zu werden.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>Was angekommen ist, entspricht nicht dem Gesendeten. Es wurde entfernt.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>%1 kann nicht umbenannt werden: %2.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>In %1 ist zu wenig Platz.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>In %1 ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>%1 kann nicht weitergeschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1 Was angekommen ist, bleibt erhalten.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>%1 kann nicht gesendet werden: Dafür ist auf diesem Computer kein Port frei.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 – %3 hat Sie zu einer Konferenz eingeladen</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>Kein Benutzer ausgewählt!</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 war nicht online: Das ist vermutlich nicht angekommen</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>Wartet, bis %1 zurück ist</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [heute: %1 – jetzt: %2] bereit »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 heißt jetzt %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 ist jetzt online ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 ist jetzt offline ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 hat jetzt den Status „%2“ ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 stupst Sie an ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 hat Ihnen den Kontakt „%2“ (%3) gesendet ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- nicht unterstützter Befehl empfangen (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- Unlesbares empfangen (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- noch %n unverständliches Datagramm von %1 empfangen ---</numerusform>
            <numerusform>--- noch %n unverständliche Datagramme von %1 empfangen ---</numerusform>
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
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alles speichern</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>Zuletzt verwendete Datei 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>Zuletzt verwendete Datei 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>Zuletzt verwendete Datei 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>&amp;Netzwerk durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>&amp;Offline-Benutzer hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>Alle hier &amp;finden</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Verlauf...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>Kontakte &amp;importieren...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>Kontakte &amp;exportieren...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>&amp;Neue Konferenz...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>&amp;Einladungen anzeigen...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>&amp;Protokollfenster anzeigen</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>Über&amp;tragungen...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Optionen...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>Hilfe &amp;suchen zu...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>&amp;Tipp des Tages...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>&amp;Netzwerkdoktor...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>Tasten&amp;kürzel...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>In&amp;fo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>&amp;Benutzer</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>&amp;Konferenz</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Privater Chat</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Benutzer &amp;anstupsen</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>In Konferenz &amp;1 einladen</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>In Konferenz &amp;2 einladen</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>In Konferenz &amp;3 einladen</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>In Konferenz &amp;4 einladen</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>In Konferenz &amp;5 einladen</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>&amp;Kontakte senden</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>Benutzer &amp;entfernen</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>Benutzer e&amp;inladen</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>&amp;Stummschalten</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>Verlauf &amp;nicht aufbewahren</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>&amp;Datei senden...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>NIMB-Chat: %1, %2</source>
        <translation>NIMB-Chat: %1, %2</translation>
    </message>
    <message>
        <source>%1, %2 unread</source>
        <translation>%1, %2 ungelesen</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>Beim letzten Beenden von NIMB-Chat: %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>Der gespeicherte eigene Status „%1“ beginnt nicht mit der Ziffer eines Bildes; er wird ausgelassen und geht beim Beenden von NIMB-Chat endgültig verloren.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- dieser Desktop zeigt kein Symbol im Infobereich: NIMB-Chat wird minimiert statt ausgeblendet ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>Dateien, deren Übertragung abgebrochen würde: %1. NIMB-Chat trotzdem beenden?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>Nachrichten, die während des Beendens ankamen, sind verloren: %1.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>Nachrichten, die beim Beenden noch ungelesen waren, sind verloren: %1.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>Reinweiß</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>Ziemlich weiß</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>Leuchtend grün</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Hellgrün</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>Fast grün</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>Ziemlich grün</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>Fast gelb</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>Überwiegend gelb</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>Ziemlich rot</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>Fast schwarz</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>Die Nachricht wurde nicht gesendet: Das Programm smbclient ist nicht installiert. Installieren Sie das Paket smbclient (Debian, Ubuntu, Arch) oder samba-client (Fedora) und senden Sie erneut.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>Die Nachricht wurde nicht gesendet: Es konnte keine temporäre Datei geschrieben werden (%1).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>Die Nachricht wurde nicht gesendet: %1 konnte nicht gestartet werden (%2).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>Die Nachricht wurde nicht gesendet: Dieses System hat keinen Befehl „%1“.</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>„%1“ ist weder ein Name noch die Adresse eines Computers oder Netzwerks, daher wurde niemand gefragt.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>Für „%1“ wurde keine Adresse gefunden, daher wurde niemand gefragt.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 hat zu viele Adressen, um sie einzeln zu fragen: Der größte Bereich ist /%2.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>%1 neue Nachrichten</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 neue Nachricht</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 lädt Sie zu einer Konferenz ein</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 stupst Sie an</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 in Konferenz %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>neue Nachrichten</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>neue Nachricht</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (nicht verbunden)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>Das Starten mit dem Desktop lässt sich nicht ändern: %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>Kein Netzwerk</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>Jetzt ist ein Netzwerk da: Ihre Adresse ist %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>Ihre Adresse ist jetzt %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>Dieser Computer war im Ruhezustand: Ihre Adresse ist weiterhin %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>Die Netzwerke haben sich geändert: Ihre Adresse ist weiterhin %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>Die Netzwerkkarte %1, deren Adresse laut Optionen Ihre ist, ist nicht verbunden; so lange ist Ihre Adresse %2.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>Kein Netzwerk gibt diesem Computer eine IPv4-Adresse, daher kann Sie niemand erreichen. NIMB-Chat arbeitet weiter, sobald es eine gibt.</translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abwesend</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... eigenen Status hinzufügen...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>Text der Auto-Antwort (bei „Beschäftigt“)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>Text der Auto-Antwort (bei „Abwesend“)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>Sie sind unsichtbar: „Neu abfragen“ zeigt Ihren Kontakten, dass Sie da sind</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>Alle Kontakte fragen, ob sie da sind</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>Nur %1 eigene Status werden gespeichert: „%2“ gilt, bis NIMB-Chat beendet wird.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 stupst Sie an...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 schreibt eine Nachricht...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>Dieses Bild hat mehr als 50 Megapixel. Wählen Sie ein kleineres.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Dieses Bild ist beschädigt.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>Dieses Bild ist beschädigt oder viel zu groß.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Das ist kein Bild, das NIMB-Chat lesen kann.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>Port %1 ist belegt</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>Port %1 nicht nutzbar</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Dieser Computer hat die Adresse nicht, die NIMB-Chat benutzen soll, daher kann Sie niemand über Port %1 erreichen. Berichtigen Sie NIMBCHAT_ADDRESS oder verbinden Sie das Netzwerk: NIMB-Chat versucht es alle 5 Sekunden erneut.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>Das System lässt NIMB-Chat den Port %1 nicht benutzen, daher kann Sie niemand erreichen. Wählen Sie einen Port über 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>Das Netzwerk lässt sich über Port %1 nicht benutzen, daher kann Sie niemand erreichen. NIMB-Chat versucht es alle 5 Sekunden erneut.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Port %1 wird von einem anderen Programm benutzt, daher kann Sie niemand erreichen. Schließen Sie dieses Programm: NIMB-Chat versucht es alle 5 Sekunden erneut.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>Port %1 ist jetzt frei: Sie sind erreichbar.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>Sie sind wieder über Port %1 erreichbar.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 ist online</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 ist offline</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 ist jetzt offline</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 hat jetzt den Status „%2“</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [heute: %1 – jetzt: %2] bereit »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 ist offline: Dateien können gesendet werden, sobald %1 zurück ist.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 – NIMB-Chat – Privater Chat</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>an dieser Stelle steht etwas, das keine Datei ist</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS ist „%1“ und damit keine IPv4-Adresse; NIMB-Chat lauscht stattdessen auf allen Schnittstellen.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>Das System gewährt für wartende Datagramme %1 KiB statt %2 KiB: Bei plötzlichem Andrang können einige verloren gehen.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Auf diesem Computer gibt es kein Programm, das %1 öffnet.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- beim letzten Beenden konnte NIMB-Chat nicht alles speichern: Die Änderungen werden übernommen ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- beim letzten Beenden konnte NIMB-Chat nicht alles speichern: Die Änderungen werden übernommen, beschädigte Werte (%1) ausgenommen ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>Das laufende NIMB-Chat kennt den Befehl „%1“ nicht.</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>Kein Kontakt heißt „%1“ oder hat diese Adresse.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>Mehrere Kontakte heißen „%1“: Nennen Sie einen mit seiner Adresse (%2).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 ist nicht online: Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>Es gibt keinen Text zu senden.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>Zu „invisible“ gehört kein Text.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>Den Zustand „%1“ gibt es nicht, nur online, busy, away und invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>Eine Nachricht fasst %1 Zeichen, diese hat mehr: Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>Das laufende NIMB-Chat fragt noch nach einem Spitznamen.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Der Befehl ist zu lang.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (weitere Zeilen: %1)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (weitere Zeichen: %1)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 antwortet von %2 und von %3 und wird nur einmal angezeigt</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>Kein Netzwerk dieses Computers führt zu %1, daher wurde niemand gefragt.</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>Anfrage an %1: Wer ist da?</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>nach %1 von %2 Anfragen abgebrochen</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>niemand wurde gefragt: Sie sind unsichtbar, und die Anfrage würde allen zeigen, dass Sie da sind</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>niemand kann gefragt werden: Es ist kein Netzwerk verbunden</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>alle unter %1</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>dieser Computer</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>niemand wird mehr gefragt: Sie sind unsichtbar</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 ist Ihre eigene Adresse: Was dorthin gesendet wird, empfängt sonst niemand</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>niemand hat geantwortet: Es ist kein Netzwerk verbunden, daher wurde nur dieser Computer gefragt</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>niemand hat geantwortet: Vielleicht ist niemand da, eine Firewall ist im Weg oder das Netzwerk trennt seine Geräte voneinander; was davon zutrifft, klärt %1</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>Hilfe, Netzwerkdoktor...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>Antworten: %1 (%2); davon neu: %3</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>Die gespeicherte Einstellung %1 kann nicht „%2“ sein; stattdessen gilt %3.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>sie ist weder ein Abschnitt noch ein Schlüssel mit seinem Wert</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>im Abschnitt „%2“ gibt es keinen Schlüssel „%1“</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1: weitere Zeilen ohne Bedeutung: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>die Datei ist nicht in UTF-8 geschrieben</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>ein anderes Programm benutzt die Datei</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>die Datei ist beschädigt oder enthält etwas anderes</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>der Arbeitsspeicher reicht nicht aus</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>die Datei wurde verschoben oder ersetzt</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>die Datei oder ihr Ordner ist schreibgeschützt</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>Die Einstellungen wurden nicht in %1 gespeichert (%2); alle Änderungen seit dem letzten Speichern gehen verloren, vorher Gespeichertes ist unverändert.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>Die Änderungen können zurzeit nicht in %1 gespeichert werden (%2); sie würden verloren gehen, wenn NIMB-Chat vorher beendet wird.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Der Einstellungsordner %1 kann nicht angelegt werden (%2); das Programm startet daher mit seinen Standardwerten und speichert keine Einstellungen.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Die Einstellungsdatei %1 kann nicht angelegt werden (%2); das Programm startet daher mit seinen Standardwerten und speichert keine Einstellungen.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>Die Einstellungen in %1 können nicht gelesen werden (%2); das Programm startet daher mit seinen Standardwerten und lässt die Datei unverändert.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>Die Einstellungen in %1 können nicht geändert werden (%2); Ihre Änderungen gehen daher beim Beenden des Programms verloren.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>sie konnten beim Programmstart nicht gelesen werden und würden verloren gehen</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>Die Einstellungen waren schon bei einem früheren Start von NIMB-Chat beschädigt oder leer.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>Einige der Einstellungen in %1 sind beschädigt (%2); sie können daher vom Gespeicherten abweichen.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>Die Kopie %1 kann die Einstellungen nicht ersetzen (%2); das Programm arbeitet daher ohne sie weiter.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>Die Einstellungen wurden gespeichert, aber ihre Kopie in %1 konnte nicht erneuert werden (%2).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>Tipp des Tages – Tipp %1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>Es gibt keine Tipps anzuzeigen: Die mit dem Programm gelieferte Datei TOTD.txt fehlt oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Tipp des Tages</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>Text der Auto-Antwort</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>Die Einstellungen in %1 können nicht gelesen werden; es gelten daher die Standardwerte: %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>Kontakt suchen (Strg+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>Kontakt suchen</translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>beschäftigt</translation>
    </message>
    <message>
        <source>away</source>
        <translation>abwesend</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>noch nicht bekannt</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>%1 zu senden</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>%1 ungelesen</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Spitzname</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>Arbeitsstation</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>Chatfenster</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>Avatar-Nr.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statustext</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>stumm</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>Ihre Liste ist noch leer. Ein Klick fragt alle in Ihrem Netzwerk.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>Alle hier finden</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>Hier heißt niemand „%1“</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>Unterhaltung</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>Die Unterhaltung wurde geleert.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>Emoticons</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>Emoticons und Emojis (Strg+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>Datum &amp;&amp; Zeit</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>Länge der Nachricht</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>Was keinen Platz hatte</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>Unterhaltungen werden nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>Dateien senden</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>Der Rest ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>Da&amp;teien senden...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>&amp;Ordner senden...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>Bild %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>Das Bild kann nicht gesendet werden, denn es ist kein Platz dafür.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>Ein Bild wurde eingefügt (%1 × %2).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>Eine Nachricht fasst %1 Zeichen; die letzten %2 des Eingefügten hatten keinen Platz.</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> Aufbewahren: %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>ein Jahr lang</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>für immer</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>nicht senden</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>Dateien senden; Ordner über den Pfeil oder die Nach-unten-Taste</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>Frühere Probleme mit Dateien: %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>Rest kopieren</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Antworten</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>NIMBChat-Benachrichtigung</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(%1 weitere)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiPicker</name>
    <message>
        <source>Emoji</source>
        <translation>Emojis</translation>
    </message>
    <message>
        <source>Find an emoji</source>
        <translation>Emoji suchen</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>Kein Emoji heißt so. Versuchen Sie ein anderes Wort.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>Emoticons</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>Dieses NIMB-Chat wurde ohne die Funktion zum Senden von Dateien erstellt.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>Höchstens %1 Dateien werden auf einmal gesendet: Legen Sie mehr davon in einen Ordner und senden Sie diesen.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>Höchstens %1 Dateien können gleichzeitig angeboten werden; stoppen lassen sie sich unter Extras &gt; Übertragungen...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>Hier ist niemand, dem eine Datei gesendet werden könnte.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>Dateien werden unverschlüsselt übertragen: Wer in diesem Netzwerk mithören kann, kann sie lesen.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>die Zeit ist abgelaufen</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>niemand war da, der davon erfahren konnte</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestoppt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Für</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>wird vorbereitet</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1 % an %2</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>abgeholt: %1</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>noch nicht abgeholt</translation>
    </message>
    <message>
        <source>over</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>beendet: %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>zum Abholen</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>zum Stoppen</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>Es werden Dateien unter der Adresse %1 angeboten, die dieser Computer nicht mehr hat: Niemand kann die Dateien abholen, bis er die Adresse wieder hat oder Sie die Dateien erneut senden.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>angeboten unter der Adresse %1, die dieser Computer nicht mehr hat</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>Weitere Dateien: %1.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Alle speichern...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>Speichert alles hier Angebotene in einem Ordner</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>Hier anzeigen</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>Holt das Bild und zeigt es hier an, ohne es zu speichern</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>Diese Zeile ausblenden; unter Extras &gt; Übertragungen... bleibt sie erhalten</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>%1 speichern</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Auf diesem Computer gibt es kein Programm, das %1 öffnet.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Das ist kein Bild, das NIMB-Chat lesen kann.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>Dieses Bild ist zu groß, um angezeigt zu werden: Es hat mehr als %1 Megapixel. Speichern Sie es.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>Durchsucht diese Unterhaltung; Strg+H durchsucht alles Aufbewahrte</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>Vorheriger Treffer (Enter)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>Nächster Treffer (Umschalt+Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>Alles Aufbewahrte durchsuchen</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>Öffnet das Verlaufsfenster</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche läuft...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1, %2, in „%3“</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>nimb::InvitationList</name>
    <message>
        <source>%1 minute(s)</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>Automatisch abgelehnt</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>Einladung</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Eingegangen</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>Schrift der Protokolle</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source> points</source>
        <translation> Punkt</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Anna: Guten Morgen!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Schriftart:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (nicht installiert)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Auf diesem Computer gibt es kein Programm, das %1 öffnet.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>Zur neuesten Zeile</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n neue Zeile</numerusform>
            <numerusform>%n neue Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>Einige der Nachrichten, die noch zu senden waren, konnten nicht gelesen werden und sind verloren.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>Es warten schon %1 Nachrichten auf den Versand; mehr ist nicht möglich.</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- eine Nachricht an %1 (kein Kontakt mehr) wird nicht gesendet ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- die Nachricht, die auf %1 wartete, wurde gesendet ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- die %1 Nachrichten, die auf %2 warteten, wurden gesendet ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>Was Sie an %1 (%2) geschrieben haben, wartet darauf, an %3 gesendet zu werden. Dort ist jetzt %4 (%5).

An %4 senden?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- was Sie am %2 an %1 geschrieben haben, wurde sieben Tage lang nicht gesendet ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>Spitzname</translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abwesend</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>Anwesenheit nicht bekannt</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>Kein Kontakt mehr</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>wartend: %1</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>noch zu senden: %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>Ob %1 da ist, ist nicht bekannt: Was Sie schreiben, wird gesendet, sobald %1 zurück ist</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>Ob %1 da ist, ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>Ob %1 da ist, ist nicht bekannt: Was Sie schreiben, kommt vielleicht nicht an</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 ist offline: Was Sie schreiben, wird gesendet, sobald %1 zurück ist</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 ist offline</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 ist offline: Was Sie schreiben, kommt nicht an</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 ist kein Kontakt mehr: Was von dort kommt, wird nicht angezeigt</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>Nicht später senden</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>Senden, sobald %1 zurück ist</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>Was in dieser Unterhaltung wartet, wird nicht gesendet, und was Sie jetzt schreiben, wartet nicht</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>Was Sie geschrieben haben und nicht ankam, wird aufgehoben und dann erneut gesendet; ebenso, was Sie jetzt schreiben</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>&amp;Status:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>angeboten</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>wartet auf andere</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1 % von %2, %3 pro Sekunde</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1 % von %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>pausiert bei %1 %</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>wird geprüft</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>gespeichert und geprüft</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>gespeichert; Prüfung mangels Angaben des Absenders nicht möglich</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 bietet diese Datei nicht mehr an.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>vorhandener Teil wird geprüft: %1 %</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Webseite (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Kopieren	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>&amp;Alles auswählen	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>V&amp;erkleinern</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>&amp;Suchen...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>Unterhaltung speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>&amp;Linkadresse kopieren</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(Vorschläge dauern länger)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(kein Vorschlag)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Aus</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>Die Dateien dieses Wörterbuchs sind nicht lesbar oder beschädigt</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>Zum Wörterbuch hinzufügen</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Rechtschreibprüfung</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>Spitzname</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>Dateien, die beim Beenden von NIMB-Chat noch nicht vollständig angekommen waren: %2; fortsetzen lassen sie sich unter %1</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>Extras, Übertragungen...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>Über NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>Bild von NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>Ein einfacher Messenger, der mit UDP/IP arbeitet und für kleine lokale Netzwerke gedacht ist</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>Freie Software unter der MIT-Lizenz, ohne jede Gewährleistung. Nichts, was gesendet wird, ist verschlüsselt: Alle in Ihrem Netzwerk können es lesen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>&amp;Systeminfo...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Systeminformationen sind zurzeit nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>Offline-Benutzer hinzufügen</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>Angaben zum Benutzer</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Auflösen</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>&amp;Spitzname</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>&amp;Arbeitsstation</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>&amp;IP-Adresse</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>Konferenzeinladungen – NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>Einladungen</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>Niemand hat Sie zu einer Konferenz eingeladen. Beginnen Sie selbst eine und laden Sie Ihre Kontakte über deren Menü dazu ein.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>Konferenz beginnen</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Annehmen</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>A&amp;blehnen</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>A&amp;lle ablehnen</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Au&amp;fräumen</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>Entfernt die Einladungen, die vorbei sind</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>Automatisch ablehnen nach</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>Minute(n)</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>Teilnehmer</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>Liste aktualisieren</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>Teilnehmer entfernen</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>Teilnehmer ein-/ausblenden</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>Noch ist niemand sonst hier.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>Jemanden einladen...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>Noch jemanden einladen...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>Kein weiterer Kontakt ist online</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>Avatare</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>Avatare ein-/ausblenden</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>fraglich</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat – Netzwerkdoktor</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Er&amp;neut prüfen</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>&amp;Bericht kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>&amp;Antwortet dieser Kontakt?</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>Zu fragender Kontakt</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>Ihre Liste ist noch leer</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>&amp;Fragen</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>Die letzten Datagramme</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>Noch wurde nichts gesendet oder empfangen.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>Nachrichten&amp;texte anzeigen</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>Nichts wurde verworfen.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>Verworfen:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat – Verlauf</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Unterhaltungen</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>In der Auswahl suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>erster Tag</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>letzter Tag</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>from</source>
        <translation>von</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stoppen</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>&amp;Löschen...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Der Export wurde gestoppt.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>Alle Unterhaltungen</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>To be sent (%1)</source>
        <translation>Noch zu senden (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>Was Sie an abwesende Kontakte geschrieben haben</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>Nicht an %1 gesendet</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>Noch an %1 zu senden</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>Noch wird nichts aufbewahrt. Ob Unterhaltungen aufbewahrt werden, legen Sie in den Optionen fest.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>Keine passenden Nachrichten gefunden.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Webseite (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>NIMB-Chat-Verlauf</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>Exportierte Nachrichten: %1.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>Bisher exportierte Nachrichten: %1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>Ausgewählte &amp;Nachricht</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>Die ausgewählte Nachricht endgültig löschen?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>Ausgewählte &amp;Unterhaltung</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>Alles endgültig löschen, was von „%1“ aufbewahrt wird?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>Ausgewählte &amp;Tage</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>Alles endgültig löschen, was von den ausgewählten Tagen aufbewahrt wird?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alles</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>Alles endgültig löschen, was von allen Unterhaltungen aufbewahrt wird?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>Die ausgewählte Nachricht löschen? Sie wird dann nicht gesendet.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>Wird gelöscht...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>Nichts wurde gelöscht: Der Verlauf kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>Alles endgültig löschen, was von allen Unterhaltungen aufbewahrt wird? Was noch zu senden ist, bleibt und wird gesendet.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat – Einladung per Net Send</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>S&amp;tandardtext</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>&amp;Eigener Text</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>Eigener Text</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>An den Computer %2 senden, für %1</translation>
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
        <translation>Willkommen bei NIMB-Chat!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>Bitte wählen Sie einen Spitznamen für diese Sitzung</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>&amp;Spitzname:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>nimb::frmMain</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>Geleert.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>Details der Kontakte</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>Spitzname &amp;&amp; Status</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>Alle Benutzerdetails</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Neu abfragen</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>Anstupsen stumm</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>Benutzerdetai&amp;ls</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>Ausgewählter Kontakt</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>Ihr Status</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>Auto-Antwort</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>Antworttext...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>Gefragte Adressen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>Fragt niemanden mehr</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat – Netzwerk durchsuchen</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>Das Netzwerk nach neuen NIMB-Chat-Benutzern durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>Name der &amp;Arbeitsstation / IP-Adresse:</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>Alle in einem Netzwerk dieses Computers</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>Alle in...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>Hinweis: Mit einer Broadcast-Adresse lässt sich ein ganzes Netzwerk durchsuchen (ist Ihre IP-Adresse zum Beispiel 192.168.1.1 und Ihre Subnetzmaske 255.255.255.0, so ist Ihre Broadcast-Adresse 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>Dieser Computer ist zurzeit in keinem Netzwerk.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>Netzwerk&amp;doktor...</translation>
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
        <translation>NIMBChat-Benachrichtigung</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>ausblenden</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschehen ist</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>&amp;Statusänderungen im privaten Chat nicht melden</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>Kein &amp;Ton beim eigenen Anstupsen</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>Kein Ton beim Anstupsen &amp;durch andere</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>Privates Chatfenster im &amp;Vordergrund öffnen</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>Privates Chatfenster &amp;minimiert öffnen (Standard)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>Schließen blendet private Chatfenster n&amp;ur aus; Nachrichten bleiben erhalten</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>Kein &amp;Benachrichtigungsfenster</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>Ist dies angekreuzt, wird nichts eingeblendet: weder wer kommt und geht noch was eintrifft</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>&amp;LiveType standardmäßig aus</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>S&amp;chließen blendet das Hauptfenster nur aus (zurück per Symbol im Infobereich)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>Nachrichten und &amp;Einladungen melden</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>Nur wenn das zugehörige Fenster nicht aktiv ist und Sie nicht beschäftigt sind; stummgeschaltete Kontakte werden nie gemeldet</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>Te&amp;xt der Nachricht zeigen</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>Ton bei einer &amp;Nachricht</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>Ton, wenn &amp;jemand online kommt</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>Ton bei jeder Einladun&amp;g</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat – Optionen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Sie</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Spitzname:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>Ihre eigenen Status</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>Eigene Status:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>Töne und Benachrichtigungen</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>Neues, während Sie anderes tun</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>Unterhaltungen aufbewahren</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>ein Jahr lang</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>für immer</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>Unterhaltungen aufbewahren:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>Private Chatfenster</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>Hauptfenster und Netzwerk</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>UDP-&amp;Port:</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>Ihre Adresse</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>Ihre Ad&amp;resse:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>wie der Desktop</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Änderungen wirken ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>Schrift der Protokolle</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>Schri&amp;ft...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>Gilt für neue Fenster; offene behalten ihre Schrift.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>Ihr Avatar</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>&amp;Kein Avatar</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>Ein B&amp;ild:</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>Wec&amp;hselnde Bilder:</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>Das Bild</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>L&amp;aden...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>Woher die Bilder kommen</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>von der Kamera</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>aus einem Ordner</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>&amp;Wählen...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>Ein Bild lässt sich auch hierher ziehen oder einfügen. Wechselnde Bilder enden mit NIMB-Chat; das Bild bleibt gespeichert.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>nachfragen</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>Durch die Umgebungsvariable NIMBCHAT_ADDRESS festgelegt</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1, %2 Punkt</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>Schrift des Desktops: %1, %2 Punkt</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>Bilder (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Mit dem Desktop starten</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>Bei jeder Anmeldung, minimiert, mit Ihrem Spitznamen</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat – Privater Chat</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>Was Ihr Gegenüber gerade schreibt</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>Anstupsen!</translation>
    </message>
    <message>
        <source>(CTRL+G)</source>
        <translation>(Strg+G)</translation>
    </message>
    <message>
        <source>LiveType!</source>
        <translation>LiveType!</translation>
    </message>
    <message>
        <source>The other one sees what you type before you send it</source>
        <translation>Ihr Gegenüber sieht schon vor dem Senden, was Sie schreiben</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Stimmung</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>Avatar</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>Avatar des Gegenübers</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>Ihre Stimmung (nicht angegeben)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>Stimmung des Gegenübers (nicht angegeben)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Sie</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Gegenüber</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>Adresse des Gegenübers</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>Ihre Stimmung (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>Stimmung des Gegenübers (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat – Kontakte an „%1“ senden</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>Markierte Kontakte auswählen</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>Alle Kontakte auswählen</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>Markierte Kontakte zurücknehmen</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>Alle Kontakte zurücknehmen</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>Markieren Sie die Kontakte, die Sie senden möchten</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>Kontakte, die gesendet werden können</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>Keine weiteren Kontakte zum Senden</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>Zum Senden ausgewählte Kontakte</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>Hierher verschobene Kontakte werden gesendet</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>Handbuchseite zum Fenster öffnen</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>Kontakt suchen (auch durch Tippen in der Liste)</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>Aufbewahrte Unterhaltungen</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>Privates Chatfenster des ausgewählten Kontakts öffnen</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>Ausgewählte Kontakte nach Rückfrage entfernen</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>Kontaktsuche verlassen</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Nachricht senden</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>Neue Zeile beginnen</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>Im leeren Eingabefeld: letzte Nachricht zurückholen</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>Emoji wählen</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>Anstupsen (private Chatfenster)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>Suche, Emoticons oder Emojis verlassen</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Im Protokoll suchen</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Auswahl kopieren</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>Normale Schriftgröße</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>Alle Fenster</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Hauptfenster</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Unterhaltungen</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat – Tastenkürzel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>Wussten Sie schon?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat ist freie Software unter der MIT-Lizenz. Sie dürfen es gern an alle in Ihrem Netzwerk weitergeben.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>&amp;Tipps beim Start anzeigen</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>&amp;Nächster Tipp</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat – Übertragungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>Was Sie anbieten, solange NIMB-Chat läuft</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>Was Sie anbieten</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>Nichts wird angeboten. Ziehen Sie Dateien oder Ordner auf eine Unterhaltung oder klicken Sie dort auf die Büroklammer.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>Wie lange es angeboten wird</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>24 Stunden lang</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>Bis es einmal abgeholt wurde</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Bis es gestoppt wird</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stoppen</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>Was andere Ihnen anbieten</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>Seit dem Start von NIMB-Chat hat Ihnen niemand eine Datei angeboten.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>Spei&amp;chern...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausieren</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Auf diesem Computer gibt es kein Programm, das %1 öffnet.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>&amp;Alle speichern...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>Speichert alles Angebotene, das noch nicht abgeholt wurde, in einem Ordner</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>&amp;Alle speichern (%1)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>&amp;Verwerfen...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>Gibt die Datei auf und entfernt, was davon angekommen ist</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>„%1“ verwerfen? Was davon angekommen ist, %2, wird von der Festplatte entfernt.</translation>
    </message>
</context>
</TS>
