<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>Заполните все поля</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>Нельзя добавить самого себя...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>Этот IP-адрес уже у другого пользователя</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>Это не адрес одного компьютера: отправленное сюда получают все в сети.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>Этот адрес нельзя сохранить: он обозначает конец сохранённого списка.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>Это не адрес вида 192.168.1.20: отправить сюда ничего нельзя.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>Камера не найдена.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>Камера остановилась: %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>Камера отключена.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (вы)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>Конференция № %1 (организатор: вы) — NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>Конференция № %1 (организатор: «%2») — NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [дата: %1 — время: %2] Конференция № %3 готова »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>Конференция № %1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>Конференция № %1 (организатор: %2)</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- Конференция завершена.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- Вы исключили %1 из конференции.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>Если закрыть это окно, конференция завершится. Продолжить?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>Покинуть конференцию?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 теперь в конференции</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 покидает конференцию.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 отказывается от участия в конференции</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>Больше конференций открыть нельзя: все окна заняты.</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>NIMB-Chat с этим профилем не запущен.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>Запущенный NIMB-Chat не отвечает.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Команда слишком длинная.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Личный чат</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Подать &amp;сигнал</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Удалить пользователя</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Отправить &amp;контакты</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>При&amp;гласить пользователя</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>Личный чат с «%1»</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>Подать сигнал для «%1»</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>Удалить выбранных из списка (%1)</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>Удалить «%1» из списка</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>Отправить &amp;контакты для «%1»</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>С&amp;ообщение net send для «%1»</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>При&amp;гласить пользователя «%1»</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (непрочитанных сообщений: %2)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1 на %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 не в сети: ваши сообщения не дойдут</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>выясняется, в сети ли %1: пока это не известно, окно не откроется</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>неизвестно, в сети ли %1: кнопка «Обновить» опросит контакты, но и покажет им вас</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>неизвестно, в сети ли %1: кнопка «Обновить» опросит контакты</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>Удалить пользователя «%1» на рабочей станции «%2» (%3)?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>Удалить выбранных пользователей (%1)?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (ещё %1)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>Подтверждение удаления</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>Выбрано контактов: %1</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>«%1» — не адрес одного компьютера</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>пустое имя</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 уже встречается выше</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>кодировка файла не UTF-8</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>должно быть: %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>кавычки расставлены неверно</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>полей должно быть три</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>отправленное на %1 получают все в сети</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>адрес %1 у каждого компьютера означает его самого</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Строка %1 файла %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>; строка %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; ещё %n</numerusform>
            <numerusform>; ещё %n</numerusform>
            <numerusform>; ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1. Контакты из этого файла не загружены.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>загружено контактов из %1: %2; уже были в списке: %3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>; пропущен ваш собственный адрес</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>новые контакты</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>отправлены контакты для %1: %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>Последнее сообщение: %1, %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>в реестр нельзя записать</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>Контакты (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Все файлы (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>файл слишком велик для списка контактов</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Не удалось прочитать %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Не удалось записать %1: %2.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>контактов в %1: %2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>контактов в %1: %2; не включены, так как другим они недоступны: %3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>Датаграмма отправлена на собственный адрес.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>Поиск брандмауэра.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 больше нет в контактах.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 — не адрес вида 192.168.1.20: отправить туда ничего нельзя.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>Удалите контакт и добавьте его заново с адресом.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>%1: опрос не проведён, потому что вы невидимы, а запрос показал бы, что вы здесь.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>Сначала выберите другой статус.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>Ни одна сеть этого компьютера не ведёт к %1.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>Подключитесь к сети, в которой находится контакт.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>%1: опрос не проведён, потому что ответ некому принять.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>Сначала разберитесь с портом.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>Ожидание ответа от %1.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat настроен на работу только внутри этого компьютера: используется сеть loopback.</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>Нет подключённой сети с IPv4-адресом.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>Подключите кабель или беспроводную сеть, которой пользуются остальные.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Сеть подключена: %1.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>Ваш адрес — %1, но ни у одного сетевого адаптера этого компьютера его нет.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>Исправьте NIMBCHAT_ADDRESS или подключите эту сеть.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>Подключите сеть или выберите другой свой адрес в меню «Инструменты → Параметры».</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>Ваш адрес — %1 (адаптер %2), но через него никого не найти: он ведёт к одному-единственному компьютеру или к тому, что работает внутри этого.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>Если остальные в другой сети, исправьте NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>Если остальные в другой сети, выберите её адаптер для своего адреса в меню «Инструменты → Параметры».</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>Ваш адрес — %1, он доступен только программам на этом компьютере.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>Чтобы общаться с другими компьютерами, запустите NIMB-Chat без NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>Сетевой адаптер %1, адрес которого выбран в параметрах, не подключён; ваш адрес — %2 (адаптер %3).</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>Подключите этот адаптер или выберите другой свой адрес в меню «Инструменты → Параметры».</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>Ваш адрес — %1 (адаптер %2).</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat принимает данные на UDP-порту %1.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>Система не разрешает NIMB-Chat использовать порт %1.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>Выберите в меню «Инструменты → Параметры» порт больше 1023, такой же, как у всех.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>Данные не принимаются: у этого компьютера нет вашего адреса.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Подключите сеть с этим адресом; NIMB-Chat повторяет попытку каждые 5 секунд.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>Порт %1 занят программой %2 (процесс %3).</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Закройте эту программу; NIMB-Chat повторяет попытку каждые 5 секунд.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>Порт %1 занят другой программой.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>Какой именно, покажет команда «sudo ss -ulpn sport = :%1».</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat не принимает данные на порту %1.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat повторяет попытку каждые 5 секунд; если это не поможет, перезапустите программу.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>UDP-порт %1 свободен для NIMB-Chat; программа не запущена.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat работает (процесс %1) и принимает данные на UDP-порту %2.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>Система не выделяет места для ожидающих датаграмм.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>Система хранит только %1 КиБ ожидающих датаграмм: если сразу ответят многие, часть ответов потеряется.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>Команда «sudo sysctl -w net.core.rmem_max=4194304» увеличит этот объём.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>Система хранит %1 КиБ ожидающих датаграмм.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>Датаграмма, отправленная на собственный адрес %1, вернулась.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>Датаграмма, отправленная на собственный адрес %1, не вернулась за секунду.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>Брандмауэр этого компьютера не пропускает даже собственные датаграммы, или адрес принадлежит не этому компьютеру.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>Датаграмма на собственный адрес не отправлена: её некому принять.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>Датаграмма на собственный адрес не отправлена: её получил бы уже запущенный экземпляр. Он проверит это своей диагностикой сети.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>Опросить всех на этом компьютере можно.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>Нет сети, в которой можно опросить всех.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>Добавьте остальных по адресам: «Пользователи → Добавить пользователя вручную».</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>Запрос ко всем отправляется: %1.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>Система отказывается отправлять всем: %1.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>Брандмауэр этого компьютера не выпускает запрос; разрешите исходящий UDP на этот адрес.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>Брандмауэра на этом компьютере не видно.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>Брандмауэр %1 включён и пропускает входящие на UDP-порт %2.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>Брандмауэр %1 включён и не пропускает входящие на UDP-порт %2: связаться с вами никто не может.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>Порт откроет команда: %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>Брандмауэр %1 включён и, похоже, пропускает входящие на UDP-порт %2 не от всех.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>Если другие не могут с вами связаться, порт для всех откроет команда: %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>Закрыт ли UDP-порт %1 брандмауэром, может узнать только администратор.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>Ответ даст команда «sudo nimb-chatctl doctor».</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>На этом компьютере может работать брандмауэр, но программы, которая покажет все его правила, нет.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>Их покажут команды «sudo nft list ruleset» и «sudo iptables-legacy -S» из пакетов nftables и iptables.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>Брандмауэр %1 включён; пропускает ли он входящие на UDP-порт %2, может узнать только администратор.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>Адаптеры %1 и %2 в одной сети; ваш адрес — тот, что был выбран.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>Адаптеры %1 и %2 в одной сети: другие могут видеть вас под любым из двух адресов.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>Отключите один из них или выберите один для своего адреса в меню «Инструменты → Параметры».</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>Ваш адрес принадлежит %1: это VPN или другая линия к одному-единственному компьютеру.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>Если остальные в локальной сети, выберите её адаптер для своего адреса в меню «Инструменты → Параметры».</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>Подключён VPN (%1); ваш адрес не в нём.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>VPN нет, и ни в одной сети нет двух адаптеров этого компьютера.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>Ответ от %1 получен через %2 мс.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>Ответа от %1 нет, но компьютер с адресом %2 на месте или был там только что.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>Возможно, там UDP не пропускает брандмауэр, NIMB-Chat не запущен, его пользователь невидим или тот экземпляр ещё не знает о вас: выполните «Пользователи → Найти всех в сети» с обеих сторон. Запустите диагностику сети и там.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>Ответа от %1 нет, и ни у одного компьютера вашей сети нет адреса %2.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>Компьютер выключен, сменил адрес, находится в другой сети, или точка доступа не даёт компьютерам видеть друг друга (изоляция клиентов).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>Ответа от %1 нет. Адрес %2 в другой сети: за маршрутизатором или на другом конце туннеля.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>Всё на пути туда должно пропускать UDP в обе стороны; кроме того, там возможны те же причины, что и внутри одной сети: брандмауэр, незапущенная программа, невидимый пользователь.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>Ответа от %1 нет. Путь к %2 идёт с вашего адреса %3, но в параметрах выбран адаптер %4, адрес которого %5 оттуда может быть недоступен.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>Выберите «автоматически» или адаптер той сети для своего адреса в меню «Инструменты → Параметры».</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>личное сообщение</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>сообщение конференции</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>не команда</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>неизвестная команда</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>неполная команда</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[в норме]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[сомнительно]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[ОШИБКА]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>вх.</translation>
    </message>
    <message>
        <source>out</source>
        <translation>исх.</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>Отброшено с момента запуска:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>Последние датаграммы:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>С адресов, которых нет в контактах: %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>Неполные команды: %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>Команды, которые здесь никто не обрабатывает: %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>Для окон личных чатов, которые не открыты: %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>Для конференций, которых нет или которые недоступны отправителю: %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>Адреса, которые не могут стать контактами: %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>Новые контакты при заполненном списке: %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>Сообщения, когда прочтения ждало слишком много других: %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>Приглашения, когда ответа ждало слишком много других: %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>Аватары, когда уже хранилось слишком много чужих: %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>Контакты, уступившие место в заполненном списке: %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>Аватары и списки, запрошенные или присланные слишком часто: %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>Датаграммы, которые не удалось отправить: %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>Датаграммы, потерянные до прочтения: %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>Не поместившиеся в очередь, от самых активных отправителей: %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>из них от %1: %2</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>Лица и эмоции</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Люди</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>Животные и природа</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>Еда и напитки</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>Путешествия и места</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Занятия</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Предметы</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Символы</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Флаги</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>смеющееся лицо</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>плачущее лицо</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>улыбающееся лицо</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>грустное лицо</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>спокойное лицо</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>лицо с высунутым языком</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>подмигивающее лицо</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>подмигивающее лицо с высунутым языком</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>лицо с широкой улыбкой</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>Выберите папку с изображениями</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>Выберите папку для отправки</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>Выберите папку для сохранения</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>Выберите файлы для отправки</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Параметры страницы</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>Файл %1 изменился после того, как был предложен, поэтому его передача прекращена.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Не удалось прочитать %1.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>В %1 слишком много файлов, чтобы отправить их вместе.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>Отправить %1 нельзя: не удаётся прочитать до конца.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 и ещё %2</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>Не вошло в %2 объектов: %1 (%3). Ссылки не раскрываются, а то, что не удаётся прочитать, не отправляется.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>Отправить %1 нельзя: это не файл и не папка, доступные для чтения.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>В «%1» нет изображений, которые можно показать.</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>Настройки пусты.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>Есть копия настроек, сохранённая %1 в %2. Продолжить работу NIMB-Chat с этой копией? То, что не будет использовано, сохранится под другим именем.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>Есть копия настроек, сохранённая %1 в %2; NIMB-Chat предложит её, если его запустить без псевдонима.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>История была повреждена, поэтому начата новая; в неё перенесены сообщения, которые удалось прочитать: %1. Старый файл — %2.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>она записана более новой версией NIMB-Chat</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>История в %1 сейчас недоступна (%2); сохранённое ранее не изменилось.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>История в %1 удалена или заменена во время работы NIMB-Chat: всё, что будет сказано с этого момента, попадёт в ту, которая находится там сейчас.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>История в %1 сейчас доступна только для чтения (%2): пока это не изменится, ничего больше не сохраняется.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>Папки %1 больше нет.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Не удалось записать %1: %2.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>Соединение с отправителем прервано.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>Отправитель недоступен.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>Отправитель прервал передачу или дал непригодный ответ.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>Отправитель дал непригодный ответ.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>Отправитель больше не предлагает этот файл.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>Изображение слишком велико для показа.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>Получено не то, что было отправлено. Полученное удалено.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>Не удалось переименовать %1: %2.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>В %1 слишком мало места.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>В %1 закончилось место.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>Не удалось продолжить запись %1: %2.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1 Полученная часть сохранена.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>Не удалось отправить %1: на этом компьютере нет свободного порта.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 — %3 приглашает вас в конференцию</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>Пользователь не выбран!</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 не в сети: вероятно, сообщение не дошло</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>Уйдёт, когда %1 вернётся в сеть</translation>
    </message>
    <message>
        <source>new</source>
        <translation>новое</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [дата: %1 — время: %2] Готов к работе »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 теперь под псевдонимом %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 теперь в сети ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 больше не в сети ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 меняет статус на «%2» ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 подаёт вам сигнал ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 присылает вам контакт «%2» (%3) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- получена неподдерживаемая команда (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- получены непонятные данные (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- от %1 получена ещё %n непонятная датаграмма ---</numerusform>
            <numerusform>--- от %1 получены ещё %n непонятные датаграммы ---</numerusform>
            <numerusform>--- от %1 получено ещё %n непонятных датаграмм ---</numerusform>
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
        <translation>Создать</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Сохранить все</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Параметры страницы</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Предварительный просмотр</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>Недавний файл 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>Недавний файл 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>Недавний файл 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>&amp;Сканирование сети...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>&amp;Добавить пользователя вручную...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>&amp;Найти всех в сети</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;История...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>И&amp;мпорт контактов...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>&amp;Экспорт контактов...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>&amp;Создать новую...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>&amp;Приглашения...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>Показать окно &amp;журнала</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>&amp;Передача файлов...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>П&amp;араметры...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Содержание</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>По&amp;иск в справке...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Руководство</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>Со&amp;вет дня...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>&amp;Диагностика сети...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>Сочетания &amp;клавиш...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>О &amp;программе</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>&amp;Пользователи</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>&amp;Конференция</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Инструменты</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Личный чат</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Подать &amp;сигнал</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>Пригласить в конференцию № &amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>Пригласить в конференцию № &amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>Пригласить в конференцию № &amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>Пригласить в конференцию № &amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>Пригласить в конференцию № &amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Отправить &amp;контакты</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Удалить пользователя</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>При&amp;гласить пользователя</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>&amp;Без уведомлений</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>&amp;Не сохранять историю</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>Отправить &amp;файл...</translation>
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
        <translation>%1, непрочитанных: %2</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>При прошлом завершении NIMB-Chat: %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>Сохранённый собственный статус «%1» не начинается с цифры картинки, поэтому пропущен и исчезнет насовсем при завершении NIMB-Chat.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- этот рабочий стол не показывает значок в трее: NIMB-Chat сворачивается, а не скрывается ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>Незавершённая передача файлов будет прервана: %1. Всё равно завершить NIMB-Chat?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>Сообщения, пришедшие во время завершения программы, потеряны: %1.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>Сообщения, не прочитанные до завершения программы, потеряны: %1.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>Идеально белый</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>Почти белый</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>Ярчайший зелёный</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Светло-зелёный</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>Почти зелёный</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>Довольно зелёный</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>Почти жёлтый</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>Преимущественно жёлтый</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>Довольно красный</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Тёмно-красный</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>Почти чёрный</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Чёрный</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>Сообщение не отправлено: программа smbclient не установлена. Установите пакет smbclient (Debian, Ubuntu, Arch) или samba-client (Fedora) и повторите отправку.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>Сообщение не отправлено: не удалось записать временный файл (%1).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>Сообщение не отправлено: не удалось запустить %1 (%2).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>Сообщение не отправлено: в этой системе нет команды «%1».</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>«%1» — не имя и не адрес компьютера или сети, поэтому опрос не проведён.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>Для «%1» адрес не найден, поэтому опрос не проведён.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1: слишком много адресов, чтобы опросить каждый; наибольший диапазон — /%2.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>Новых сообщений: %1</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 новое сообщение</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 приглашает вас в конференцию</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 подаёт вам сигнал</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 в конференции № %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>новые сообщения</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>новое сообщение</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>автоматически</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (не подключён)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Порт должен быть числом от 1 до 65535.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>Не удалось изменить запуск вместе с рабочим столом: %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>Нет сети</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>Сеть появилась: ваш адрес — %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>Теперь ваш адрес — %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>Компьютер вышел из спящего режима: ваш адрес по-прежнему %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>Сети изменились: ваш адрес по-прежнему %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>Сетевой адаптер %1, адрес которого выбран в параметрах, не подключён; до его подключения ваш адрес — %2.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>Ни в одной сети у этого компьютера нет IPv4-адреса, поэтому связаться с вами нельзя. NIMB-Chat продолжит работу, как только адрес появится.</translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation>В сети</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Занят(а)</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Нет на месте</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Невидимка</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... добавить собственный статус...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Статус: %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>Текст автоответа для статуса «Занят(а)»</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>Текст автоответа для статуса «Нет на месте»</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>Вы невидимы: обновление покажет вас вашим контактам</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>Узнать, кто из контактов в сети</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>Сохраняется не более %1 собственных статусов: «%2» исчезнет при завершении NIMB-Chat.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 подаёт вам сигнал...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 набирает сообщение...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>В этом изображении больше 50 мегапикселей. Выберите поменьше.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Изображение повреждено.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>Изображение повреждено или слишком велико.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>NIMB-Chat не может прочитать это изображение.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>Не удалось открыть «%1».</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>Порт %1 занят</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>Порт %1 недоступен</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>У этого компьютера нет адреса, заданного для NIMB-Chat, поэтому связаться с вами на порту %1 нельзя. Исправьте NIMBCHAT_ADDRESS или подключите сеть: NIMB-Chat повторяет попытку каждые 5 секунд.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>Система не разрешает NIMB-Chat использовать порт %1, поэтому связаться с вами нельзя. Выберите порт больше 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>Сеть на порту %1 недоступна, поэтому связаться с вами нельзя. NIMB-Chat повторяет попытку каждые 5 секунд.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Порт %1 занят другой программой, поэтому связаться с вами нельзя. Закройте её: NIMB-Chat повторяет попытку каждые 5 секунд.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>Порт %1 теперь свободен: с вами можно связаться.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>С вами снова можно связаться на порту %1.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 в сети</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 не в сети</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 больше не в сети</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 меняет статус на «%2»</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [дата: %1 — время: %2] Готов к работе »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 не в сети: файлы можно будет отправить, когда %1 вернётся в сеть.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 — NIMB-Chat — Личный чат</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>на его месте находится не файл</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>В NIMBCHAT_ADDRESS указано «%1», а это не IPv4-адрес; вместо этого NIMB-Chat принимает данные на всех интерфейсах.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>Система выделяет для ожидающих датаграмм %1 КиБ вместо %2 КиБ: при резком наплыве часть может потеряться.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>На этом компьютере нечем открыть %1.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- при прошлом завершении NIMB-Chat удалось сохранить не всё: изменения восстановлены ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- при прошлом завершении NIMB-Chat удалось сохранить не всё: изменения восстановлены, кроме повреждённых значений (%1) ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>Запущенный NIMB-Chat не знает команды «%1».</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>Нет контакта с именем «%1» или таким адресом.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>Несколько контактов носят имя «%1»: укажите адрес одного из них (%2).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 не в сети: ничего не отправлено.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>Нет текста для отправки.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Не удалось прочитать %1.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>К состоянию «invisible» текст не добавляется.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>Состояния «%1» нет; есть online, busy, away и invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>В сообщении помещается символов: %1, а в этом больше: ничего не отправлено.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>Запущенный NIMB-Chat ещё запрашивает псевдоним.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Команда слишком длинная.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (ещё строк: %1)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (ещё символов: %1)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 отвечает с %2 и с %3, поэтому показывается один раз</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>Опрос не проведён: ни одна сеть этого компьютера не ведёт к цели (%1).</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>опрос, кто в сети: %1</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>опрос остановлен: опрошено %1 из %2</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>опрос не проведён: вы невидимы, а запрос показал бы всем, что вы здесь</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>опрос невозможен: нет подключённой сети</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>все на %1</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>этот компьютер</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>опрос прекращён: вы невидимы</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 — ваш собственный адрес: отправленное туда больше никто не получит</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>ответов нет: сеть не подключена, поэтому опрошен только этот компьютер</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>ответов нет: возможно, никого нет, мешает брандмауэр или сеть не даёт компьютерам видеть друг друга; причину поможет найти «%1»</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>Справка → Диагностика сети...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>ответов: %1 (%2); новых: %3</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>Сохранённый параметр %1 не может иметь значение «%2»; вместо него используется %3.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>это не раздел и не ключ со значением</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>в разделе «%2» нет ключа «%1»</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1: прочих строк без смысла: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, строка %2: %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Не удаётся прочитать %1: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>файл слишком велик</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>файл записан не в UTF-8</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>диск заполнен</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>файл используется другой программой</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>файл повреждён или содержит что-то другое</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>закончилась память</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>файл перемещён или заменён</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>файл или его папка доступны только для чтения</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>Не удалось сохранить настройки в %1 (%2), поэтому изменения с последнего сохранения не записаны; сохранённое ранее не изменилось.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>Сейчас изменения не удаётся сохранить в %1 (%2); они пропадут, если NIMB-Chat завершится раньше, чем сможет их записать.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Не удалось создать папку настроек %1 (%2), поэтому программа запускается со значениями по умолчанию и настройки не сохраняет.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Не удалось создать файл настроек %1 (%2), поэтому программа запускается со значениями по умолчанию и настройки не сохраняет.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>Не удалось прочитать настройки в %1 (%2), поэтому программа запускается со значениями по умолчанию и не меняет этот файл.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>Изменить настройки в %1 нельзя (%2), поэтому ваши изменения пропадут при завершении программы.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>при запуске программы их не удалось прочитать, и они были бы потеряны</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>При прошлом запуске NIMB-Chat настройки были повреждены или пусты.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>Часть настроек в %1 повреждена (%2), поэтому они могут отличаться от сохранённых.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>Копией %1 не удалось заменить настройки (%2), поэтому программа продолжает работу без них.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>Настройки сохранены, но их копию в %1 не удалось обновить (%2).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>Совет дня — № %1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>Советов нет: файл TOTD.txt, поставляемый с программой, отсутствует или не читается.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Совет дня</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>Текст автоответа</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>Вернуть</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>Не удалось прочитать настройки в %1, поэтому взяты настройки нового экземпляра: %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>Найти контакт (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>Найти контакт</translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation>в сети</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>занят(а)</translation>
    </message>
    <message>
        <source>away</source>
        <translation>нет на месте</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>не в сети</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>пока неизвестно</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>ожидают отправки: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>непрочитанных: %1</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Псевдоним</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>Рабочая станция</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-адрес</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>Окно чата</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>№ аватара</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Статус</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>без уведомлений</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>В вашем списке пока никого нет. Одним щелчком можно опросить всех в вашей сети.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>Найти всех в сети</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>Показать всех</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>Контакт «%1» не найден</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>Беседа</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>Беседа очищена.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>Смайлики</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>Смайлики и эмодзи (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>Длина сообщения</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>Что не поместилось</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>Беседы не сохраняются.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>Отправить файлы</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>Остаток — в буфере обмена.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>Отправить &amp;файлы...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>О&amp;тправить папку...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>Изображение %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>Не удалось отправить изображение: для него нет места.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>Вставлено изображение (%1 × %2).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>В сообщение помещается не более %1 символов; последние символы вставленного текста (%2) не поместились.</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> Сохранять: %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>в течение года</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>всегда</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>не отправлять</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>Отправить файлы; папки — по стрелке или клавише «Вниз»</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>Более ранние проблемы с файлами: %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>Копировать остаток</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Ответить</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>Уведомление NIMBChat</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(ещё %1)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>Недавние</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiPicker</name>
    <message>
        <source>Emoji</source>
        <translation>Эмодзи</translation>
    </message>
    <message>
        <source>Find an emoji</source>
        <translation>Найти эмодзи</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>Эмодзи с таким названием нет. Попробуйте другое слово.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>Смайлики</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>Этот экземпляр NIMB-Chat собран без модуля отправки файлов.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>За один раз можно отправить не более %1 файлов: если их больше, сложите их в папку и отправьте её.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>Одновременно можно предлагать не более %1 файлов; остановите лишние: Инструменты → Передача файлов...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>Здесь нет никого, кому можно отправить файл.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>Файлы передаются без шифрования: прочитать их может каждый, кто способен прослушивать эту сеть.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>срок истёк</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>сообщить об этом было некому</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>остановлено</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Кому</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход передачи</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Действует до</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>подготовка</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1 % для %2</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>получено раз: %1</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>пока не получено</translation>
    </message>
    <message>
        <source>over</source>
        <translation>завершено</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>завершено: %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>первого получения</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>остановки</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>Файлы предлагаются по адресу %1, которого у этого компьютера больше нет: получить их нельзя, пока адрес не вернётся или вы не отправите их снова.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>предложено по адресу %1, которого у этого компьютера больше нет</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>Другие файлы: %1.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Сохранить все...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>Сохраняет всё предложенное здесь в одну папку</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Показать все</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>Показать здесь</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>Загружает изображение и показывает его здесь без сохранения</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Сохранить...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>Скрыть эту строку; она останется в меню «Инструменты → Передача файлов...»</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход передачи</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 от %2</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>Сохранить %1</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>На этом компьютере нечем открыть %1.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>NIMB-Chat не может прочитать это изображение.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Изображение %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>Изображение слишком велико для показа: в нём больше %1 мегапикселей. Сохраните его.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>Поиск в этой беседе; Ctrl+H — поиск во всём сохранённом</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Аа</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>С учётом регистра</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>Предыдущее (Enter)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>Следующее (Shift+Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Закрыть (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>Искать во всём сохранённом</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>Открывает окно истории</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Поиск...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1, %2, в «%3»</translation>
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
        <translation>%1 мин.</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Отклонено</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>Автоотказ</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Закрыто</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>Приглашение</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Получено</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Давность</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>Шрифт журналов</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Семейство</translation>
    </message>
    <message>
        <source> points</source>
        <translation> пт</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Полужирный</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Курсив</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Анна: Доброе утро!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Семейство:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Размер:</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (не установлен)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>На этом компьютере нечем открыть %1.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>К последней строке</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n новая строка</numerusform>
            <numerusform>%n новые строки</numerusform>
            <numerusform>%n новых строк</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>Некоторые из сообщений, ожидавших отправки, не удалось прочитать; они потеряны.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>Отправки уже ожидают %1 сообщений, больше добавить нельзя.</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- ожидавшее сообщение для %1 не отправлено: такого контакта больше нет ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- ожидавшее сообщение для %1 отправлено ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- ожидавшие сообщения для %2 отправлены (%1) ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>Ваше сообщение для %1 (%2) ожидает отправки на %3. Сейчас там %4 (%5).

Отправить сообщение контакту %4?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- ваше сообщение от %2 для %1 не удалось отправить за семь дней ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>Псевдоним</translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation>В сети</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Занят(а)</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Нет на месте</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Не в сети</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>Статус неизвестен</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>Больше нет в контактах</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>ожидают: %1</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>ожидают отправки: %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>Неизвестно, в сети ли %1: ваши сообщения уйдут, когда %1 вернётся в сеть</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>Неизвестно, в сети ли %1</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>Неизвестно, в сети ли %1: ваши сообщения могут не дойти</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 не в сети: ваши сообщения уйдут, когда %1 вернётся в сеть</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 не в сети</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 не в сети: ваши сообщения не дойдут</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 больше нет в контактах: новые сообщения оттуда не показываются</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>Не отправлять позже</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>Отправить, когда %1 вернётся в сеть</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>Ожидающие сообщения этой беседы не будут отправлены, а новые ждать не будут</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>Недошедшие сообщения сохранятся и тогда будут отправлены снова; то же относится к новым</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>Ст&amp;атус:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>&amp;Текст:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Статус</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>предложено</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>ожидает других</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1 % из %2, %3/с</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1 % из %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>пауза на %1 %</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>проверка</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>сохранено и проверено</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>сохранено; отправитель не дал данных для проверки</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>From</source>
        <translation>От кого</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход передачи</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 больше не предлагает этот файл.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>проверка полученной части: %1 %</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>Текст (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Веб-страница (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Не удалось записать %1: %2.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Копировать	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>&amp;Выделить всё	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Увеличить</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>У&amp;меньшить</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>&amp;Обычный размер</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>&amp;Найти...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>&amp;Сохранить беседу как...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Печать...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>Копировать &amp;адрес ссылки</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(для вариантов нужно время)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(нет вариантов)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Выключить</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>Файлы этого словаря повреждены или не читаются</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>Добавить в словарь</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Правописание</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>Псевдоним</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>файлы, не полученные полностью до завершения NIMB-Chat: %2; продолжить их получение можно через «%1»</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>Инструменты → Передача файлов...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>О программе NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>Логотип NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>Простой мессенджер на основе UDP/IP, предназначенный для небольшой локальной сети</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>Свободное программное обеспечение по лицензии MIT, без каких-либо гарантий. Ничего из отправляемого не шифруется: прочитать это может каждый в вашей сети.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>&amp;Сведения о системе...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Сведения о системе сейчас недоступны</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>Добавить пользователя вручную</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>Введите сведения о пользователе</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Определить</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>&amp;Псевдоним</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>&amp;Рабочая станция</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>IP-&amp;адрес</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>Приглашения в конференции — NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>Приглашения</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>Вас пока никто не пригласил в конференцию. Создайте её и пригласите контакты через их контекстное меню.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>Создать конференцию</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Принять</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>&amp;Отклонить</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>Отклонить &amp;все</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>О&amp;чистить</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>Удаляет неактуальные приглашения</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>Отклонять автоматически через</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Минуты</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>мин.</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>Участники</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>Обновить список</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>Исключить</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>Показать или скрыть участников</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>Здесь пока больше никого нет.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>Пригласить кого-нибудь...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>Пригласить кого-нибудь ещё...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>Других контактов в сети нет</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>Аватары</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>Показать или скрыть аватары</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>в норме</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>сомнительно</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>проверяется</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat — Диагностика сети</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Проверить &amp;снова</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>&amp;Копировать отчёт</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>&amp;Отвечает ли этот контакт?</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>Опрашиваемый контакт</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>В вашем списке пока никого нет</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>О&amp;просить</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>Последние датаграммы</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Байты</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>Пока ничего не отправлено и не получено.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>Показывать &amp;тексты сообщений</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>Ничего не отброшено.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>Отброшено:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat — История</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Беседы</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>Поиск в выбранном</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>первый день</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>последний день</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>from</source>
        <translation>с</translation>
    </message>
    <message>
        <source>to</source>
        <translation>по</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Экспорт...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Остановить</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>&amp;Удалить...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Экспорт остановлен.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>Все беседы</translation>
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
        <translation>Ожидают отправки (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>Ваши сообщения контактам, которых не было в сети</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>Не отправлено для %1</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>Ожидает отправки для %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>Пока ничего не сохранено. Сохранять ли беседы, можно выбрать в параметрах.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>Ничего не найдено.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Текст (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Веб-страница (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Не удалось записать %1: %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>История NIMB-Chat</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>Записано сообщений: %1.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>Пока записано сообщений: %1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>Выбранное &amp;сообщение</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>Удалить выбранное сообщение навсегда?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>Выбранную &amp;беседу</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>Удалить навсегда всё сохранённое из «%1»?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>Выбранные &amp;дни</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>Удалить навсегда всё сохранённое за выбранные дни?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Всё</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>Удалить навсегда всё сохранённое из всех бесед?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>Удалить выбранное сообщение? Оно не будет отправлено.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>Удаление...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>Ничего не удалено: запись в историю невозможна.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>Удалить навсегда всё сохранённое из всех бесед? То, что ожидает отправки, останется и будет отправлено.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat — Приглашение через net send</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Отправить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>&amp;Стандартный текст</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>Свой &amp;текст</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>Свой текст</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>Отправить на компьютер %2 (для %1)</translation>
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
        <translation>Добро пожаловать в NIMB-Chat!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>Выберите псевдоним для этого сеанса</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>&amp;Псевдоним:</translation>
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
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>Очищено.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Контакты</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>Сведения о контактах</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>Псевдоним и статус</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>Полные сведения</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>Без сигналов</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>По&amp;дробности</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>Выбранный контакт</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>Свой статус</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>Автоответ</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>Текст автоответа...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Статус: %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>Опрошено адресов</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>Больше никого не опрашивать</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Все файлы (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat — Сканирование сети</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>Поиск новых пользователей NIMB-Chat в сети</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>Имя &amp;рабочей станции или IP-адрес:</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>Все в одной из сетей этого компьютера</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>Все в сети...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>Примечание: чтобы просканировать сеть целиком, укажите её широковещательный IP-адрес (например, если ваш IP-адрес 192.168.1.1, а маска подсети 255.255.255.0, то широковещательный IP-адрес — 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Сканировать</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>Сейчас этот компьютер не подключён ни к одной сети.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>&amp;Диагностика сети...</translation>
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
        <translation>Уведомление NIMBChat</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>скрыть</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Что произошло</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>&amp;Не сообщать об изменении статуса в окне личного чата</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>Без звука при своём сигна&amp;ле</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>Без звука при &amp;чужом сигнале</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>Окно личного чата &amp;поверх остальных</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>Открывать окно личного чата &amp;свёрнутым (по умолчанию)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>При закрытии окно личного чата с&amp;крывается, а его сообщения остаются</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>Не показывать &amp;окно уведомлений</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>Если флажок установлен, ничего не всплывает: ни при входе и выходе контактов, ни при новых сообщениях</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>LiveType по &amp;умолчанию выключен</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>Кнопка закрытия скрывает &amp;главное окно (вернуть его можно через значок в трее)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>Ув&amp;едомлять о сообщениях и приглашениях</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>Пока их окно неактивно, а ваш статус не «Занят(а)»; о контактах без уведомлений не сообщается никогда</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>Показывать &amp;текст сообщения</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>Звук при новом соо&amp;бщении</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>Звук, когда кто-то появл&amp;яется в сети</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>Звук при каж&amp;дом приглашении</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat — Параметры</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Вы</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Псевдоним:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>Ваши собственные статусы</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>Свои статусы:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>Звуки и уведомления</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>Когда активно другое окно</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>Сохранять беседы</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>в течение года</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>всегда</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>Сохранять беседы:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>Личные чаты</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>Главное окно и сеть</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>UDP-по&amp;рт:</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>Ваш адрес</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>&amp;Ваш адрес:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>как в системе</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Изменение вступит в силу при следующем запуске.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>Шрифт журналов</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>&amp;Шрифт...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>Применяется в новых окнах; в открытых шрифт не изменится.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>Ваш аватар</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>Без &amp;аватара</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>&amp;Изображение:</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>Меняющиеся изобра&amp;жения:</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>&amp;Загрузить...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>Откуда берутся изображения</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>с камеры</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>из папки</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>В&amp;ыбрать...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>Изображение можно также перетащить или вставить сюда. Меняющиеся изображения действуют до завершения NIMB-Chat; обычное сохраняется.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>спросить меня</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>Задано переменной окружения NIMBCHAT_ADDRESS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1, %2 пт</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>шрифт системы: %1, %2 пт</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>Изображения (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Запускать вместе с рабочим столом</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>При каждом входе в систему, свёрнутым, под вашим псевдонимом</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat — Личный чат</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>Что набирает собеседник</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>Сигнал!</translation>
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
        <translation>Собеседник видит набираемый текст ещё до отправки</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Настроение</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>Аватар</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>Аватар собеседника</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>Ваше настроение (не указано)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>Настроение собеседника (не указано)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Вы</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Собеседник</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>Адрес собеседника</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>Ваше настроение (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>Настроение собеседника (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat — Отправка контактов для «%1»</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>Добавить выделенные контакты</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>Добавить все контакты</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>Убрать выделенные контакты</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>Убрать все контакты</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>Выберите контакты для отправки</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>Контакты, которые можно отправить</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>Больше нет контактов для отправки</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>Контакты, выбранные для отправки</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>Добавленные сюда контакты будут отправлены</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Отправить</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>От&amp;мена</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>Открыть руководство на странице об этом окне</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>Найти контакт; можно просто печатать в списке</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>Сохранённые беседы</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>Открыть личный чат с выбранным контактом</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>Удалить выбранные контакты (с подтверждением)</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>Выйти из поиска контакта</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Отправить сообщение</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>Начать новую строку</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>В пустом поле: вернуть последнее сообщение</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>Выбрать эмодзи</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>Подать сигнал (личный чат)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Закрыть окно</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>Выйти из поиска, закрыть смайлики или эмодзи</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Поиск в журнале</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Копировать выделенное</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Увеличить шрифт</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Уменьшить шрифт</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>Обычный размер шрифта</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>Любое окно</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Главное окно</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Беседы</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Журналы</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat — Сочетания клавиш</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>Знаете ли вы?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Совет</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat — свободная программа по лицензии MIT. Смело делитесь ею со всеми в вашей сети.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>&amp;Показывать советы при запуске</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>&amp;Следующий совет</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat — Передача файлов</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>Вы предлагаете (пока работает NIMB-Chat)</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>Вы предлагаете</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>Ничего не предлагается. Перетащите файлы или папки в беседу или нажмите там скрепку.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>До каких пор предлагать</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>24 часа</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>До первого получения</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>До остановки</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Остановить</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>Вам предлагают</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>С запуска NIMB-Chat вам ещё не предлагали файлов.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>&amp;Сохранить...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Пауза</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Про&amp;должить</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>Открыть пап&amp;ку</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>На этом компьютере нечем открыть %1.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>Сохранить &amp;все...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>Сохраняет в одну папку всё предложенное, но ещё не полученное</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>Сохранить &amp;все (%1)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>От&amp;бросить...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>Отказывается от файла и удаляет то, что уже получено</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>Отбросить «%1»? То, что уже получено (%2), будет удалено с диска.</translation>
    </message>
</context>
</TS>
