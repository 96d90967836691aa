<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>Wypełnij wszystkie pola</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>Nie można dodać samego siebie...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>Adres IP jest już używany przez innego użytkownika</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>To nie jest adres pojedynczego komputera: wszystko, co zostanie tam wysłane, trafi do wszystkich w sieci.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>Tego adresu nie można zapisać: oznacza on koniec zapisanej listy.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>To nie jest adres w rodzaju 192.168.1.20: nic nie można tam wysłać.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>Nie ma kamery.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>Kamera przestała działać: %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>Kamera została odłączona.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (Ty)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>Konferencja nr %1 (prowadzona tutaj) – NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>Konferencja nr %1 (prowadzi „%2”) – NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [dziś: %1 - teraz: %2] Konferencja nr %3 gotowa »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>Konferencja nr %1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>Konferencja nr %1 (prowadzi %2)</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- Ta konferencja została zakończona.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- Usunięto z konferencji: %1.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>Zamknięcie tego okna zakończy konferencję. Kontynuować?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>Opuścić konferencję?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 dołącza do konferencji</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 opuszcza konferencję.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 odmawia udziału w konferencji</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>Niestety, nie ma już wolnych okien konferencji!</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>NIMB-Chat nie działa z tym profilem.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>Działający NIMB-Chat nie odpowiada.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Polecenie jest za długie.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Rozmowa prywatna</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>&amp;Szturchnij użytkownika</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Usuń użytkownika</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Wyślij &amp;kontakty</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>&amp;Zaproś użytkownika</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>Rozmowa prywatna: „%1”</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>Szturchnij: „%1”</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>Usuń z listy zaznaczonych użytkowników (%1)</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>Usuń z listy: „%1”</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>Wyślij &amp;kontakty do: „%1”</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>Wyślij wiadomość n&amp;et send do: „%1”</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>&amp;Zaproś użytkownika „%1”</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (wiadomości do przeczytania: %2)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1, stacja robocza %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 jest offline: wiadomości nie dotrą</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>trwa sprawdzanie, czy %1 jest online: do tego czasu okno się nie otworzy</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>nie wiadomo, czy %1 jest online: przycisk „Odśwież” wysyła pytanie i ujawnia Cię Twoim kontaktom</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>nie wiadomo, czy %1 jest online: przycisk „Odśwież” wysyła pytanie</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>Czy na pewno usunąć użytkownika „%1” na stacji roboczej „%2” (%3)?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>Czy na pewno usunąć tych użytkowników (%1)?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (i jeszcze %1)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>Potwierdź usunięcie użytkownika</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>Zaznaczone kontakty: %1</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>„%1” nie jest adresem pojedynczego komputera</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>nazwa jest pusta</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 występuje już wcześniej</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>plik nie jest zapisany w UTF-8</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>powinno być: %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>cudzysłowy nie tworzą par</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>liczba pól jest inna niż trzy</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>wszystko, co zostanie wysłane na adres %1, trafi do wszystkich w sieci</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 oznacza zawsze ten komputer, na którym jest używany</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Wiersz %1 pliku %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>; wiersz %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; i jeszcze %n błąd</numerusform>
            <numerusform>; i jeszcze %n błędy</numerusform>
            <numerusform>; i jeszcze %n błędów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1. Z tego pliku nie dodano żadnego kontaktu.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>kontakty dodane z pliku %1: %2; już obecne: %3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>; pominięto: Twój własny adres</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>nowe kontakty</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>kontakty wysłane do użytkownika %1: %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>Ostatnia wiadomość: %1, %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>nie można zapisać w rejestrze</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>Kontakty (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>plik jest za duży jak na listę kontaktów</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Nie można odczytać pliku %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Nie można zapisać pliku %1: %2.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>kontakty w pliku %1: %2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>kontakty w pliku %1: %2; pominięto nieosiągalne dla innych: %3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>Wysłano datagram do samego siebie.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>Szukanie zapory.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 nie należy już do kontaktów.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 nie jest adresem w rodzaju 192.168.1.20: nic nie można tam wysłać.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>Usuń kontakt i dodaj go z prawidłowym adresem.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>%1: nie wysłano pytania, bo Twój stan to „Niewidoczny”, a pytanie ujawniłoby Twoją obecność.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>Najpierw wybierz inny stan.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>Żadna sieć tego komputera nie prowadzi do: %1.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>Podłącz sieć, w której jest ten kontakt.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>%1: nie wysłano pytania, bo nic nie nasłuchuje odpowiedzi.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>Najpierw zajmij się portem.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>Oczekiwanie na odpowiedź: %1.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat ma pozostać na tym komputerze: używa sieci pętli zwrotnej.</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>Nie jest podłączona żadna sieć z adresem IPv4.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>Podłącz kabel lub połącz się z siecią bezprzewodową, której używają inni.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Połączono jako %1.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>Twój adres to %1, ale nie ma go żadna karta sieciowa tego komputera.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>Popraw NIMBCHAT_ADDRESS lub podłącz tę sieć.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>Podłącz sieć lub wybierz inny własny adres w menu Narzędzia, Opcje.</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>Twój adres to %1 na karcie %2, na której nikogo nie można znaleźć: prowadzi ona do jednego urządzenia lub do tego, co działa wewnątrz tego komputera.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>Jeśli inni są w innej sieci, popraw NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>Jeśli inni są w innej sieci, wybierz jej kartę jako własny adres w menu Narzędzia, Opcje.</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>Twój adres to %1; dostęp do niego mają tylko programy na tym komputerze.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>Aby rozmawiać z innymi komputerami, uruchom NIMB-Chat bez NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>Karta sieciowa %1, której adres wybrano w opcjach jako Twój, nie jest podłączona; Twój adres to %2 na karcie %3.</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>Podłącz tę kartę lub wybierz inny własny adres w menu Narzędzia, Opcje.</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>Twój adres to %1 na karcie %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat nasłuchuje na porcie UDP %1.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>System nie pozwala programowi NIMB-Chat używać portu %1.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>W menu Narzędzia, Opcje wybierz port powyżej 1023, ten sam co u wszystkich.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>Nic nie nasłuchuje: ten komputer nie ma Twojego adresu.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Podłącz sieć, która go ma; NIMB-Chat ponawia próbę co 5 sekund.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>Port %1 jest używany przez program %2 (proces %3).</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Zamknij ten program; NIMB-Chat ponawia próbę co 5 sekund.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>Port %1 jest używany przez inny program.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>Polecenie „sudo ss -ulpn sport = :%1” pokaże, przez który.</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat nie nasłuchuje na porcie %1.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat ponawia próbę co 5 sekund; jeśli to nie pomoże, uruchom go ponownie.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>Port UDP %1 jest wolny dla programu NIMB-Chat, który nie jest uruchomiony.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat działa (proces %1) i nasłuchuje na porcie UDP %2.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>System nie przydziela miejsca na oczekujące datagramy.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>System przechowuje tylko %1 KiB oczekujących datagramów: gdy wielu odpowiada naraz, część z nich przepada.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>Polecenie „sudo sysctl -w net.core.rmem_max=4194304” pozwoli przechowywać ich więcej.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>System przechowuje %1 KiB oczekujących datagramów.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>Datagram wysłany do samego siebie (%1) wrócił.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>Datagram wysłany do samego siebie (%1) nie wrócił w ciągu sekundy.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>Zapora na tym komputerze zatrzymuje nawet jego własne datagramy lub adres nie należy do niego.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>Nie wysłano datagramu do samego siebie, bo nic na niego nie czeka.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>Nie wysłano datagramu do samego siebie, bo odebrałby go działający już program: sprawdza to jego własna diagnostyka sieci.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>Można zapytać wszystkich na tym komputerze.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>Nie ma sieci, w której można by zapytać wszystkich.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>Dodaj innych, podając ich adresy: Użytkownicy, Dodaj użytkownika offline.</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>Pytanie do wszystkich jest wysyłane: %1.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>System odmawia wysłania do wszystkich: %1.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>Zatrzymuje je zapora na tym komputerze; zezwól na wychodzący ruch UDP na ten adres.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>Na tym komputerze nie widać zapory.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>Zapora %1 jest włączona i przepuszcza port UDP %2.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>Zapora %1 jest włączona i blokuje port UDP %2: nikt nie może się z Tobą połączyć.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>To polecenie otwiera port: %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>Zapora %1 jest włączona i, jak się wydaje, przepuszcza port UDP %2 tylko dla niektórych.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>Jeśli inni nie mogą się z Tobą połączyć, to polecenie otworzy port dla wszystkich: %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>Tylko administrator może sprawdzić, czy zapora blokuje port UDP %1.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>Pokaże to polecenie „sudo nimb-chatctl doctor”.</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>Ten komputer może mieć zaporę, ale brakuje programu, który pokaże wszystkie jej reguły.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>Pokażą je polecenia „sudo nft list ruleset” i „sudo iptables-legacy -S” z pakietów nftables i iptables.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>Zapora %1 jest włączona; tylko administrator może sprawdzić, czy przepuszcza port UDP %2.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>Karty %1 i %2 są w tej samej sieci; używany jest wybrany przez Ciebie adres.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>Karty %1 i %2 są w tej samej sieci: inni mogą Cię widzieć pod jednym lub drugim adresem.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>Wyłącz jedną z nich lub wybierz jedną jako własny adres w menu Narzędzia, Opcje.</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>Twój adres należy do karty %1, czyli VPN lub innego łącza do jednego urządzenia.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>Jeśli inni są w sieci lokalnej, wybierz jej kartę jako własny adres w menu Narzędzia, Opcje.</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>Działa VPN (%1), ale Twój adres do niego nie należy.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>Nie ma VPN, a w żadnej sieci nie ma dwóch kart tego komputera.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1: odpowiedź po %2 ms.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 nie odpowiada, ale komputer o adresie %2 jest włączony lub był przed chwilą.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>Tamtejsza zapora może blokować UDP, NIMB-Chat może tam nie działać, użytkownik może mieć stan „Niewidoczny” lub tamten program jeszcze Cię nie zna: użyjcie po obu stronach polecenia Użytkownicy, Znajdź wszystkich w sieci. Uruchom diagnostykę sieci także tam.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 nie odpowiada, a żaden komputer w Twojej sieci nie ma adresu %2.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>Komputer jest wyłączony, ma już inny adres, jest w innej sieci lub punkt dostępowy oddziela od siebie urządzenia (izolacja klientów).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 nie odpowiada. Adres %2 jest w innej sieci, za routerem lub na drugim końcu tunelu.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>Droga do tej sieci musi przepuszczać UDP w obu kierunkach; a to, co może zawieść w jednej sieci, może zawieść i tam: zapora, niedziałający program, użytkownik ze stanem „Niewidoczny”.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 nie odpowiada. Droga do %2 prowadzi z Twojego adresu %3, ale w opcjach wybrano kartę %4, której adres %5 może być stamtąd nieosiągalny.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>Wybierz „automatycznie” lub kartę tej sieci jako własny adres w menu Narzędzia, Opcje.</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>wiadomość prywatna</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>wiadomość konferencji</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>brak polecenia</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>nieznane polecenie</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>niekompletny</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[dobrze]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[wątpliwe]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[ŹLE]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>odebrany</translation>
    </message>
    <message>
        <source>out</source>
        <translation>wysłany</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>Odrzucone od uruchomienia:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nic</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>Ostatnie datagramy:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>Spod adresów spoza listy kontaktów: %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>Niekompletne polecenia: %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>Nieobsługiwane polecenia: %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>Do nieotwartych okien prywatnych: %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>Do konferencji nieistniejących lub niedostępnych w ten sposób: %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>Adresy, które nie mogą być kontaktami: %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>Nowe kontakty przy pełnej liście: %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>Wiadomości przy zbyt wielu nieprzeczytanych: %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>Zaproszenia przy zbyt wielu oczekujących: %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>Awatary przy zbyt wielu zapisanych awatarach nieznajomych: %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>Kontakty, które zwolniły miejsce na pełnej liście: %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>Awatary i listy żądane lub wysyłane zbyt często: %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>Datagramy, których nie można było wysłać: %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>Datagramy utracone przed odczytaniem: %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>Datagramy ponad limit oczekujących, od najaktywniejszych nadawców: %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>w tym od %1: %2</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>Buźki</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Ludzie</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>Zwierzęta i przyroda</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>Jedzenie i napoje</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>Podróże i miejsca</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktywności</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Przedmioty</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Flagi</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>śmiejąca się buźka</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>płacząca buźka</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>uśmiechnięta buźka</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>smutna buźka</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>neutralna buźka</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>buźka z językiem</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>mrugająca buźka</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>mrugająca buźka z językiem</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>szczerząca się buźka</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>Wybierz folder z obrazami</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>Wybierz folder do wysłania</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>Wybierz folder do zapisania</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>Wybierz pliki do wysłania</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Ustawienia strony</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>Zawartość %1 zmieniła się od czasu zaoferowania, więc transfer został zakończony.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Nie można odczytać %1.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 zawiera zbyt wiele plików, aby wysłać je razem.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>Nie można wysłać %1: nie da się odczytać całości.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 i jeszcze %2</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>Pominięte elementy (%1) w folderze %2: %3. Dowiązania są pomijane, a to, czego nie można odczytać, nie jest wysyłane.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>Nie można wysłać %1: to nie jest plik ani folder, który da się odczytać.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>W folderze „%1” nie ma obrazu do pokazania.</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>Ustawienia są puste.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>Istnieje kopia ustawień zapisana %1 o %2. Czy NIMB-Chat ma jej użyć? To, co nie zostanie użyte, będzie zachowane pod inną nazwą.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>Istnieje kopia ustawień zapisana %1 o %2; NIMB-Chat zaproponuje ją po uruchomieniu bez pseudonimu.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>Historia była uszkodzona, więc utworzono nową; liczba przeniesionych do niej wiadomości, które dało się odczytać: %1. Stary plik: %2.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>zapisała ją nowsza wersja NIMB-Chat</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>Nie można teraz używać historii w %1 (%2); to, co zachowano wcześniej, pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>Historia w %1 została usunięta lub zastąpiona podczas działania NIMB-Chat: to, co zostanie powiedziane od teraz, trafi do tej, która jest tam teraz.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>Historię w %1 można teraz tylko czytać (%2): dopóki się to nie zmieni, nic więcej nie będzie zachowywane.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>Folder %1 już nie istnieje.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Nie można zapisać %1: %2.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>Połączenie z nadawcą zostało przerwane.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>Nie można połączyć się z nadawcą.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>Nadawca przerwał przesyłanie lub odpowiedział w nieprawidłowy sposób.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>Nadawca odpowiedział w nieprawidłowy sposób.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>Nadawca już tego nie oferuje.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>Obraz jest zbyt duży, aby go pokazać.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>Odebrane dane różnią się od wysłanych. Zostały usunięte.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>Nie można zmienić nazwy %1: %2.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>W %1 jest za mało miejsca.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>W %1 nie ma już miejsca.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>Nie można dalej zapisywać %1: %2.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1 To, co odebrano, zostało zachowane.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>Nie można wysłać %1: na tym komputerze nie ma wolnego portu.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 - %3 zaprasza Cię do konferencji</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>Nie wybrano użytkownika!</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>Kontakt %1 nie był online: to prawdopodobnie nie dotarło</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>Czeka, aż %1 wróci</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nowe</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [dziś: %1 - teraz: %2] gotowy »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 ma teraz pseudonim %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 jest teraz online ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 jest teraz offline ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 ma teraz stan „%2”  ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 Cię szturcha ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 przesyła Ci kontakt „%2” (%3) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- odebrano nieobsługiwane polecenie (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- odebrano niezrozumiałe dane (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- odebrano jeszcze %n niezrozumiały datagram od: %1 ---</numerusform>
            <numerusform>--- odebrano jeszcze %n niezrozumiałe datagramy od: %1 ---</numerusform>
            <numerusform>--- odebrano jeszcze %n niezrozumiałych datagramów od: %1 ---</numerusform>
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
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Zapisz wszystko</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Ustawienia strony</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Podgląd wydruku</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>Ostatni plik 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>Ostatni plik 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>Ostatni plik 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>&amp;Skanowanie sieci...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>&amp;Dodaj użytkownika offline...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>Z&amp;najdź wszystkich w sieci</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Historia...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>&amp;Importuj kontakty...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>&amp;Eksportuj kontakty...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>Utwórz &amp;nową...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>Pokaż &amp;zaproszenia...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>Pokaż okno &amp;dziennika</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>&amp;Transfery...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opcje...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Spis treści</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>&amp;Wyszukaj w Pomocy...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Podręcznik</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>Porada &amp;dnia...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>Diagnostyka s&amp;ieci...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>S&amp;króty klawiszowe...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;O programie</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>&amp;Użytkownicy</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>&amp;Konferencja</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Narzędzia</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Rozmowa prywatna</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>&amp;Szturchnij użytkownika</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>Zaproś do konferencji nr &amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>Zaproś do konferencji nr &amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>Zaproś do konferencji nr &amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>Zaproś do konferencji nr &amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>Zaproś do konferencji nr &amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Wyślij &amp;kontakty</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Usuń użytkownika</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>&amp;Zaproś użytkownika</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>&amp;Wycisz</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>&amp;Nie zachowuj historii</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>Wyślij &amp;plik...</translation>
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
        <translation>%1, nieprzeczytane: %2</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>Przy ostatnim zakończeniu NIMB-Chat: %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>Zapisany własny stan „%1” nie zaczyna się od cyfry obrazka, więc został pominięty i zniknie na dobre po zakończeniu NIMB-Chat.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- ten pulpit nie pokazuje ikony w zasobniku: NIMB-Chat jest minimalizowany zamiast ukrywany ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>Pliki, których przesyłanie zostałoby przerwane: %1. Czy mimo to zakończyć NIMB-Chat?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>Utracone wiadomości, które nadeszły podczas kończenia programu: %1.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>Utracone wiadomości, które w chwili zakończenia programu czekały na przeczytanie: %1.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>Idealnie biały</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>Dość biały</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>Najjaśniejszy zielony</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Jasnozielony</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>Prawie zielony</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>Dość zielony</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>Prawie żółty</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Żółty</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>Przeważnie żółty</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>Dość czerwony</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Ciemnoczerwony</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>Prawie czarny</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Czarny</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>Wiadomość nie została wysłana: program smbclient nie jest zainstalowany. Zainstaluj pakiet smbclient (Debian, Ubuntu, Arch) lub samba-client (Fedora) i wyślij ponownie.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>Wiadomość nie została wysłana: nie można zapisać pliku tymczasowego (%1).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>Wiadomość nie została wysłana: nie można uruchomić %1 (%2).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>Wiadomość nie została wysłana: ten system nie ma polecenia „%1”.</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>„%1” nie jest ani nazwą, ani adresem komputera lub sieci, więc nikogo nie zapytano.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>Nie znaleziono adresu dla „%1”, więc nikogo nie zapytano.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 ma zbyt wiele adresów, aby pytać je po kolei: największy zakres to /%2.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>nowe wiadomości: %1</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 nowa wiadomość</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 zaprasza Cię do konferencji</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 Cię szturcha</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 w konferencji nr %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>nowe wiadomości</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>nowa wiadomość</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>automatycznie</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (niepodłączona)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Port musi być liczbą od 1 do 65535.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>Nie można zmienić uruchamiania z pulpitem: %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>Brak sieci</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>Sieć jest już dostępna: Twój adres to %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>Twój adres to teraz %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>Komputer był uśpiony: Twój adres to nadal %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>Sieci się zmieniły: Twój adres to nadal %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>Karta sieciowa %1, której adres wybrano w opcjach jako Twój, nie jest podłączona; do czasu jej podłączenia Twój adres to %2.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>Żadna sieć nie przydziela temu komputerowi adresu IPv4, więc nikt nie może się z Tobą połączyć. NIMB-Chat wznowi działanie, gdy tylko adres się pojawi.</translation>
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
        <translation>Zajęty</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Nieobecny</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Niewidoczny</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... dodaj własny stan...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>Tekst autoodpowiedzi (stan „Zajęty”)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>Tekst autoodpowiedzi (stan „Nieobecny”)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>Twój stan to „Niewidoczny”: odświeżenie ujawni Cię Twoim kontaktom</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>Pyta wszystkie kontakty, czy są online</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>Liczba zachowywanych własnych stanów jest ograniczona do %1: „%2” zniknie po zakończeniu NIMB-Chat.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 Cię szturcha...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 pisze wiadomość...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>Ten obraz ma ponad 50 megapikseli. Wybierz mniejszy.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Ten obraz jest uszkodzony.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>Ten obraz jest uszkodzony albo o wiele za duży.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>To nie jest obraz, który NIMB-Chat potrafi odczytać.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>Nie można otworzyć „%1”.</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>Port %1 jest zajęty</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>Brak portu %1</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Ten komputer nie ma adresu, którego miał używać NIMB-Chat, więc nikt nie może się z Tobą połączyć na porcie %1. Popraw NIMBCHAT_ADDRESS lub podłącz sieć: NIMB-Chat ponawia próbę co 5 sekund.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>System nie pozwala programowi NIMB-Chat używać portu %1, więc nikt nie może się z Tobą połączyć. Wybierz port powyżej 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>Nie można używać sieci na porcie %1, więc nikt nie może się z Tobą połączyć. NIMB-Chat ponawia próbę co 5 sekund.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Port %1 jest używany przez inny program, więc nikt nie może się z Tobą połączyć. Zamknij ten program: NIMB-Chat ponawia próbę co 5 sekund.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>Port %1 jest już wolny: można się z Tobą połączyć.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>Znów można się z Tobą połączyć na porcie %1.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 jest online</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 jest offline</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 jest teraz offline</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 ma teraz stan „%2”</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [dziś: %1 - teraz: %2] gotowy »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 jest offline: pliki będzie można wysłać, gdy %1 wróci.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 – NIMB-Chat – Okno rozmowy prywatnej</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>w jego miejscu jest coś, co nie jest plikiem</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS ma wartość „%1”, która nie jest adresem IPv4; NIMB-Chat nasłuchuje zamiast tego na wszystkich interfejsach.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>System przydziela %1 KiB na oczekujące datagramy zamiast %2 KiB: przy nagłym napływie część może przepaść.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Żaden program na tym komputerze nie otwiera %1.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- NIMB-Chat nie zdążył wszystkiego zapisać przy ostatnim zakończeniu: zmiany zostały przejęte ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- NIMB-Chat nie zdążył wszystkiego zapisać przy ostatnim zakończeniu: zmiany zostały przejęte oprócz uszkodzonych wartości (%1) ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>Działający NIMB-Chat nie zna polecenia „%1”.</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>Żaden kontakt nie nazywa się „%1” ani nie ma tego adresu.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>Kilka kontaktów nazywa się „%1”: podaj adres jednego z nich (%2).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 nie jest online: nic nie wysłano.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>Nie ma tekstu do wysłania.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Nie można odczytać %1.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>Stan „invisible” nie może mieć tekstu.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>Nie ma stanu „%1”: są online, busy, away i invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>Wiadomość mieści %1 znaków, a ta ma więcej: nic nie wysłano.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>Działający NIMB-Chat pyta jeszcze o pseudonim.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Polecenie jest za długie.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (pozostałe wiersze: %1)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (pozostałe znaki: %1)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 odpowiada z adresów %2 i %3, więc jest na liście tylko raz</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>Żadna sieć tego komputera nie prowadzi do: %1, więc nikogo nie zapytano.</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>trwa sprawdzanie, kto jest online: %1</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>zatrzymano po zapytaniu %1 z %2</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>nikogo nie zapytano: Twój stan to „Niewidoczny”, a pytanie ujawniłoby wszystkim Twoją obecność</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>nikogo nie można zapytać: żadna sieć nie jest podłączona</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>wszyscy w sieci %1</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>ten komputer</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>nikt więcej nie zostanie zapytany: Twój stan to „Niewidoczny”</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 to Twój własny adres: nikt inny nie odbierze tego, co tam wyślesz</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>nikt nie odpowiada: żadna sieć nie jest podłączona, więc zapytano tylko ten komputer</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>nikt nie odpowiada: może nikogo nie ma, może przeszkadza zapora, a może sieć oddziela od siebie urządzenia; przyczynę ustali %1</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>Pomoc, Diagnostyka sieci...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>odpowiedzi: %1 (%2); nowe: %3</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>Zapisane ustawienie %1 nie może mieć wartości „%2”; zamiast tego używane jest %3.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>nie jest ani sekcją, ani kluczem z wartością</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>w sekcji „%2” nie ma klucza „%1”</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1: dalsze wiersze bez znaczenia: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, wiersz %2: %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Nie można odczytać %1: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>plik jest za duży</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>plik nie jest zapisany w UTF-8</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>dysk jest pełny</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>inny program używa pliku</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>plik jest uszkodzony lub zawiera coś innego</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>zabrakło pamięci</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>plik został przeniesiony lub zastąpiony</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>plik lub jego folder jest tylko do odczytu</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>Ustawienia nie zostały zapisane w %1 (%2), więc zmiany od ostatniego zapisu przepadły; to, co zapisano wcześniej, pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>Nie można teraz zapisać zmian w %1 (%2), więc przepadną, jeśli NIMB-Chat zakończy działanie, zanim zdoła je zapisać.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Nie można utworzyć folderu ustawień %1 (%2), więc program używa ustawień domyślnych i niczego nie zapisuje.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Nie można utworzyć pliku ustawień %1 (%2), więc program używa ustawień domyślnych i niczego nie zapisuje.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>Nie można odczytać ustawień w %1 (%2), więc program używa ustawień domyślnych i pozostawia plik bez zmian.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>Nie można zmienić ustawień w %1 (%2), więc Twoje zmiany przepadną po zakończeniu programu.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>nie można było ich odczytać przy uruchamianiu programu i zostałyby utracone</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>Przy poprzednim uruchomieniu NIMB-Chat ustawienia były uszkodzone lub puste.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>Część ustawień w %1 jest uszkodzona (%2), więc mogą się różnić od zapisanych.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>Kopia %1 nie może zastąpić ustawień (%2), więc program działa bez nich.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>Ustawienia zostały zapisane, ale ich kopii w %1 nie można było odnowić (%2).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>Porada dnia – porada nr %1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>Nie ma porad do pokazania: brakuje dołączonego do programu pliku TOTD.txt lub nie można go odczytać.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Porada dnia</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>Tekst autoodpowiedzi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>Przywróć</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>Nie można odczytać ustawień w %1, więc użyto ustawień nowej instalacji: %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>Znajdź kontakt (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>Znajdź kontakt</translation>
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
        <translation>zajęty</translation>
    </message>
    <message>
        <source>away</source>
        <translation>nieobecny</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>jeszcze nieznany</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>do wysłania: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>nieprzeczytane: %1</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Pseudonim</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>Stacja robocza</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Adres IP</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>Okno prywatne</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>Nr awatara</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>wyciszony</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>Na Twojej liście nikogo jeszcze nie ma. Jednym kliknięciem zapytasz wszystkich w swojej sieci.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>Znajdź wszystkich w sieci</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>Pokaż wszystkich</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>Nikt tutaj nie nosi nazwy „%1”</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>Rozmowa</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>Rozmowa została wyczyszczona.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>Emotikony</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>Emotikony i emoji (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>Data i czas</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>Długość wiadomości</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>Niemieszczący się tekst</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>Rozmowy nie są zachowywane.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>Wyślij pliki</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>Reszta jest w schowku.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>W&amp;yślij pliki...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>Wyślij &amp;folder...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>Obraz %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>Nie można wysłać obrazu, bo brakuje na niego miejsca.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>Wklejono obraz (%1 × %2).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>Wiadomość mieści najwyżej %1 znaków; z wklejonego tekstu nie zmieściły się ostatnie znaki (%2).</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> Zachowuj je: %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>przez rok</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>bezterminowo</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>pomiń</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>Wyślij pliki; aby wysłać folder, użyj strzałki lub klawisza strzałki w dół</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>Wcześniejsze problemy z plikami: %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>Skopiuj resztę</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Odpowiedz</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>NIMBChat – powiadomienie!</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(i jeszcze %1)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>Ostatnio używane</translation>
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
        <translation>Znajdź emoji</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>Żadne emoji nie ma takiej nazwy. Spróbuj innego słowa.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nie znaleziono</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>Emotikony</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>Ta wersja NIMB-Chat została zbudowana bez części wysyłającej pliki.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>Naraz można wysłać najwyżej %1 plików: umieść je w folderze i wyślij folder.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>Naraz można oferować najwyżej %1 plików: zatrzymaj niektóre w menu Narzędzia &gt; Transfery...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>Nie ma tu nikogo, komu można by wysłać plik.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>Pliki nie są szyfrowane podczas przesyłania: może je odczytać każdy, kto może podsłuchiwać w tej sieci.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>upłynął czas</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>nie było komu tego zaoferować</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zatrzymano</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Dla</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Do kiedy</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>przygotowywanie</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1 % do %2</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>pobrano: %1</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>jeszcze nie pobrano</translation>
    </message>
    <message>
        <source>over</source>
        <translation>zakończone</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>zakończone: %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>do pobrania</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>do zatrzymania</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>Pliki są oferowane pod adresem %1, którego ten komputer już nie ma: nikt nie może ich pobrać, dopóki komputer go nie odzyska lub nie wyślesz ich ponownie.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>oferowany pod adresem %1, którego ten komputer już nie ma</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>Pozostałe pliki: %1.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Zapisz wszystko...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>Zapisuje wszystko, co jest tu oferowane, w jednym folderze</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Pokaż wszystkie</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ukryj</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>Pokaż tutaj</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>Pobiera obraz i pokazuje go tutaj bez zapisywania</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Zapisz...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>Ukrywa ten wiersz; w menu Narzędzia &gt; Transfery... plik pozostaje dostępny</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ukryj</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 – nadawca: %2</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>Zapisz %1</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Żaden program na tym komputerze nie otwiera %1.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>To nie jest obraz, który NIMB-Chat potrafi odczytać.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Obraz %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>Ten obraz jest zbyt duży, aby go pokazać: ma ponad %1 megapikseli. Zapisz go.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>Przeszukuje tę rozmowę; Ctrl+H przeszukuje całą historię</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Uwzględniaj wielkość liter</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>Poprzednie (Enter)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>Następne (Shift+Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Zamknij (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>Przeszukaj całą historię</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>Otwiera okno historii</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Wyszukiwanie...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nie znaleziono</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1, %2, rozmowa „%3”</translation>
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
        <translation>Odrzucone</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>Odrzucone automatycznie</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Zamknięte</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>Zaproszenie</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Nadeszło</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Wiek</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>Czcionka dzienników</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Rodzina</translation>
    </message>
    <message>
        <source> points</source>
        <translation> pkt</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Pogrubienie</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursywa</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Anna: Dzień dobry!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Rodzina:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Ro&amp;zmiar:</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (niezainstalowana)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Żaden program na tym komputerze nie otwiera %1.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>Do najnowszego wiersza</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n nowy wiersz</numerusform>
            <numerusform>%n nowe wiersze</numerusform>
            <numerusform>%n nowych wierszy</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>Niektórych wiadomości czekających na wysłanie nie można było odczytać i przepadły.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>Na wysłanie czeka już maksymalna liczba wiadomości (%1).</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- wiadomość czekająca na użytkownika %1, który nie należy już do kontaktów, nie zostanie wysłana ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- wysłano wiadomość czekającą na użytkownika %1 ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- wysłano wiadomości (%1) czekające na użytkownika %2 ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>Wiadomość dla użytkownika %1 (%2) czeka na wysłanie pod adres %3. Teraz jest tam %4 (%5).

Wysłać ją do użytkownika %4?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- wiadomości dla użytkownika %1 z dnia %2 nie udało się wysłać w ciągu siedmiu dni ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>Pseudonim</translation>
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
        <translation>Zajęty</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Nieobecny</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>Obecność nieznana</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>Spoza kontaktów</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>oczekujące: %1</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>oczekujące na wysłanie: %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>Nie wiadomo, czy %1 jest online: wiadomości zostaną wysłane, gdy %1 wróci</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>Nie wiadomo, czy %1 jest online</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>Nie wiadomo, czy %1 jest online: wiadomości mogą nie dotrzeć</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 jest offline: wiadomości zostaną wysłane, gdy %1 wróci</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 jest offline</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 jest offline: wiadomości nie dotrą</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 nie należy już do kontaktów: przychodzące stamtąd wiadomości nie są pokazywane</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>Nie wysyłaj później</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>Wyślij, gdy %1 wróci</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>Wiadomości oczekujące w tej rozmowie nie zostaną wysłane, a nowe nie będą czekać</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>Wiadomości, które nie dotarły, są zachowywane i zostaną wtedy wysłane ponownie; dotyczy to też nowych</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>S&amp;tan:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>T&amp;ekst:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>zaoferowany</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>czeka na inne pliki</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1 % z %2, %3/s</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1 % z %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>wstrzymany na %1 %</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>sprawdzanie</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>zapisany i sprawdzony</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>zapisany; nadawca nie podał danych do sprawdzenia</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 już nie oferuje tego pliku.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>sprawdzanie odebranej części: %1 %</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>Tekst (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Strona internetowa (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Nie można zapisać pliku %1: %2.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Kopiuj	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>Zaznacz &amp;wszystko	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Powiększ</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Po&amp;mniejsz</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>&amp;Normalny rozmiar</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>&amp;Znajdź...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>Zapi&amp;sz rozmowę jako...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drukuj...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>Kopiuj &amp;adres łącza</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(ustalanie podpowiedzi trwa dłużej)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(brak podpowiedzi)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Wyłączone</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>Plików tego słownika nie można odczytać lub są uszkodzone</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>Dodaj do słownika</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Sprawdzanie pisowni</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>Pseudonim</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>pliki nieodebrane w całości przed zakończeniem NIMB-Chat: %2; wznowić je można w menu %1</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>Narzędzia, Transfery...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>O programie NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>Obrazek NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>Prosty komunikator działający przez UDP/IP, przeznaczony do małych sieci lokalnych</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>Wolne oprogramowanie na licencji MIT, bez żadnej gwarancji. Nic, co jest wysyłane, nie jest szyfrowane: każdy w Twojej sieci może to odczytać.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>Informacje o &amp;systemie...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Informacje o systemie są obecnie niedostępne</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>Dodaj użytkownika offline</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>Podaj dane użytkownika</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Ustal</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>&amp;Pseudonim</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>&amp;Stacja robocza</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>&amp;Adres IP</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>Zaproszenia do konferencji – NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>Zaproszenia</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>Nie masz zaproszeń do konferencji. Utwórz własną i zaproś do niej kontakty z ich menu.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>Utwórz konferencję</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Przyjmij</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>&amp;Odrzuć</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>Odrzuć &amp;wszystkie</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Wy&amp;czyść</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>Usuwa zakończone zaproszenia</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>Odrzucaj automatycznie po</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>min</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>Uczestnicy</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>Odśwież listę</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>Wyrzuć użytkownika</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>Pokaż/ukryj uczestników</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>Nikogo innego jeszcze tu nie ma.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>Zaproś kogoś...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>Zaproś kogoś jeszcze...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>Żaden inny kontakt nie jest online</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>Awatary</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>Pokaż/ukryj awatary</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>dobrze</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>wątpliwe</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>źle</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>w toku</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat – Diagnostyka sieci</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Sprawdź &amp;ponownie</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Kopiuj &amp;raport</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>&amp;Czy ten kontakt odpowiada?</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>Kontakt, który ma zostać zapytany</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>Na Twojej liście nikogo jeszcze nie ma</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>&amp;Zapytaj</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>Ostatnie datagramy</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bajty</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Rodzaj</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>Niczego jeszcze nie wysłano ani nie odebrano.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>Pokaż &amp;treść wiadomości</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>Niczego nie odrzucono.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>Odrzucone:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat – Historia</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Rozmowy</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Wiadomości</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>Szukaj w wybranym zakresie</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>pierwszy dzień</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>ostatni dzień</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>from</source>
        <translation>od</translation>
    </message>
    <message>
        <source>to</source>
        <translation>do</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksportuj...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zatrzymaj</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>&amp;Usuń...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Eksport został zatrzymany.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>Wszystkie rozmowy</translation>
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
        <translation>Do wysłania (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>Wiadomości do kontaktów, które były nieobecne</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>Niewysłane, adresat: %1</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>Do wysłania, adresat: %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>Niczego jeszcze nie zachowano. W opcjach można wybrać, czy rozmowy mają być zachowywane.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>Nic nie pasuje do wyszukiwania.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Tekst (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Strona internetowa (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Nie można zapisać pliku %1: %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>Historia NIMB-Chat</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>Zapisane wiadomości: %1.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>Dotychczas zapisane wiadomości: %1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>Wybraną &amp;wiadomość</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>Usunąć trwale wybraną wiadomość?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>Wybraną &amp;rozmowę</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>Usunąć trwale całą zachowaną historię „%1”?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>Wybrane &amp;dni</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>Usunąć trwale całą historię z wybranych dni?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>W&amp;szystko</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>Usunąć trwale całą historię wszystkich rozmów?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>Usunąć wybraną wiadomość? Nie zostanie wysłana.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>Usuwanie...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>Niczego nie usunięto: nie można zapisać historii.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>Usunąć trwale całą historię wszystkich rozmów? To, co czeka na wysłanie, pozostanie i zostanie wysłane.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat – Zaproszenie przez net send</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Wyślij</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>Tekst s&amp;tandardowy</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>Wł&amp;asny tekst</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>Własny tekst</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>Wyślij na komputer %2, dla: %1</translation>
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
        <translation>Witamy w NIMB-Chat!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>Wybierz pseudonim na tę sesję</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>&amp;Pseudonim:</translation>
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
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>Wyczyszczono.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakty</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>Szczegóły kontaktów</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>Pseudonim i status</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>Pełne dane</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Odśwież</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>Wycisz szturchnięcia</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>&amp;Szczegóły</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>Zaznaczony kontakt</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>Twój stan</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>Autoodpowiedź</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>Tekst autoodpowiedzi...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>Zapytane adresy</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>Nie pyta nikogo więcej</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat – Skanowanie sieci</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>Szukaj w sieci nowych użytkowników NIMB-Chat</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>Nazwa &amp;stacji roboczej / adres IP:</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>Wszyscy w jednej z sieci tego komputera</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>Wszyscy w sieci...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>Uwaga: aby przeskanować całą sieć, można użyć adresu rozgłoszeniowego (np. dla adresu IP 192.168.1.1 i maski podsieci 255.255.255.0 adresem rozgłoszeniowym jest 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Skanuj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>Ten komputer nie jest teraz w żadnej sieci.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>&amp;Diagnostyka sieci...</translation>
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
        <translation>NIMBChat – powiadomienie!</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>ukryj</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Co się wydarzyło</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>Nie pokazuj zmian &amp;stanu w oknach rozmów prywatnych</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>Wyłącz dźwięk &amp;własnych szturchnięć</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>Wyłącz dźwięk o&amp;debranych szturchnięć</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>Okno rozmowy prywatnej zawsze na wierzc&amp;hu</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>Otwieraj okno rozmowy prywatnej z&amp;minimalizowane (domyślnie)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>&amp;Zamknięcie okna prywatnego tylko je ukrywa i zachowuje wiadomości</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>Wyłącz ok&amp;no powiadomień</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>Po zaznaczeniu nic się nie wysuwa: ani informacje o tym, kto pojawia się i znika, ani o tym, co nadeszło</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>LiveType domyś&amp;lnie wyłączony</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>Przycisk zamykania &amp;ukrywa okno główne (przywraca je ikona w zasobniku)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>P&amp;owiadamiaj o wiadomościach i zaproszeniach</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>Gdy ich okno nie jest aktywne, a Twój stan jest inny niż „Zajęty”; wyciszony kontakt nigdy nie wywołuje powiadomień</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>Pokazuj &amp;treść wiadomości</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>Dźwięk przy wiadomoś&amp;ci</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>Dźwięk, &amp;gdy ktoś pojawia się online</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>Dźwięk prz&amp;y każdym zaproszeniu</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat – Opcje</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Ty</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Pseudonim:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>Twoje własne stany</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>Własne stany:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>Dźwięki i powiadomienia</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>Nowości, gdy zajmujesz się czymś innym</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>Zachowuj rozmowy</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>przez rok</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>bezterminowo</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>Zachowuj rozmowy:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>Okna prywatne</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>Okno główne i sieć</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>&amp;Port UDP:</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>Twój adres</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>Twó&amp;j adres:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>jak w systemie</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Zmiana zadziała po ponownym uruchomieniu.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>Czcionka dzienników</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>Czcion&amp;ka...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>Dotyczy nowych okien; otwarte zachowują swoją.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>Twój awatar</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>&amp;Bez awatara</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>Ob&amp;raz:</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>Zm&amp;ieniające się obrazy:</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>Wczyt&amp;aj...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>Skąd pochodzą obrazy</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>z kamery</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>z folderu</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>Wybi&amp;erz...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>Obraz można też tu upuścić lub wkleić. Zmieniające się obrazy kończą się wraz z zakończeniem NIMB-Chat; obraz jest zachowywany.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>zapytaj mnie</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>Określa to zmienna środowiskowa NIMBCHAT_ADDRESS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1, %2 pkt</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>czcionka systemu: %1, %2 pkt</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>Obrazy (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Uruchamiaj z pulpitem</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>Przy każdym logowaniu, zminimalizowany, z Twoim pseudonimem</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat – Rozmowa prywatna</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>Co pisze rozmówca</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>Szturchnij!</translation>
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
        <translation>Rozmówca widzi, co piszesz, zanim to wyślesz</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Nastrój</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>Awatar</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>Awatar rozmówcy</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>Twój nastrój (nieokreślony)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>Nastrój rozmówcy (nieokreślony)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Ty</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Rozmówca</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>Adres rozmówcy</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>Twój nastrój (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>Nastrój rozmówcy (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat – Wysyłanie kontaktów do: „%1”</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>Wybierz zaznaczone kontakty</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>Wybierz wszystkie kontakty</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>Wycofaj zaznaczone kontakty</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>Wycofaj wszystkie kontakty</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>Wybierz kontakty, które chcesz wysłać</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>Kontakty, które można wysłać</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>Nie ma więcej kontaktów do wysłania</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>Kontakty wybrane do wysłania</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>Przeniesione tutaj kontakty zostaną wysłane</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Wyślij</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>Otwórz podręcznik na stronie tego okna</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>Znajdź kontakt; pisanie na liście działa tak samo</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>Historia rozmów</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>Otwórz okno prywatne zaznaczonego kontaktu</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>Usuń zaznaczone kontakty (po pytaniu)</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>Opuść wyszukiwanie kontaktu</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Wyślij wiadomość</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>Zacznij nowy wiersz</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>W pustym polu: przywróć ostatnią wiadomość</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>Wybierz emoji</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>Szturchnij (okna prywatne)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Zamknij okno</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>Opuść wyszukiwanie, emotikony lub emoji</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Szukaj w dzienniku</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Kopiuj zaznaczenie</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Większe litery</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Mniejsze litery</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>Litery normalnej wielkości</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>Wszystkie okna</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Okno główne</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Rozmowy</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dzienniki</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat – Skróty klawiszowe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>Czy wiesz, że...?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Porada</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat to wolne oprogramowanie na licencji MIT. Możesz przekazać je wszystkim w swojej sieci.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>&amp;Pokazuj porady przy uruchamianiu</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>&amp;Następna porada</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat – Transfery</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>Co oferujesz, dopóki działa NIMB-Chat</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>Co oferujesz</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>Niczego nie oferujesz. Upuść pliki lub foldery na rozmowę albo kliknij w niej spinacz.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>Do kiedy oferta jest ważna</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>Przez 24 godziny</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>Do pierwszego pobrania</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Do zatrzymania</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zatrzymaj</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>Co oferują Ci inni</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>Od uruchomienia NIMB-Chat nikt nie zaoferował Ci pliku.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>Zapi&amp;sz...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Wstrzymaj</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Wz&amp;nów</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Otwórz folder</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Żaden program na tym komputerze nie otwiera %1.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>Zapisz wszys&amp;tko...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>Zapisuje w jednym folderze wszystko, co jest oferowane, a nie zostało jeszcze pobrane</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>Zapisz wszys&amp;tko (%1)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>O&amp;drzuć...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>Rezygnuje z pliku i usuwa to, co już odebrano</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>Odrzucić „%1”? To, co już odebrano (%2), zostanie usunięte z dysku.</translation>
    </message>
</context>
</TS>
