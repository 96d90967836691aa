<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>Compila tutti i campi</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>Non puoi aggiungere il tuo indirizzo...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>Indirizzo IP già usato da un altro utente</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>Questo non è l'indirizzo di un singolo computer: tutti nella rete ricevono ciò che vi si invia.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>Questo indirizzo non può essere conservato: segna la fine dell'elenco memorizzato.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>Questo non è un indirizzo come 192.168.1.20: non è possibile inviarvi nulla.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>Nessuna fotocamera disponibile.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>La fotocamera si è fermata: %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>La fotocamera è stata scollegata.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (tu)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>Conferenza n. %1 (ospitata qui) - NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>Conferenza n. %1 (ospitata da «%2») - NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [oggi:%1 - ora:%2] Conferenza n. %3 pronta »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>Conferenza n. %1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>Conferenza n. %1 di %2</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- Questa conferenza è terminata.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- Hai espulso %1 dalla conferenza.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>Chiudendo questa finestra la conferenza terminerà. Continuare?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>Lasciare la conferenza?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 partecipa ora alla conferenza</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 ha lasciato la conferenza.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 ha rifiutato di partecipare alla conferenza</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>Spiacenti, le finestre di conferenza sono esaurite.</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>NIMB-Chat non è in esecuzione con questo profilo.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>Il NIMB-Chat in esecuzione non risponde.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Il comando è troppo lungo.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Chat privata</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Invia un &amp;trillo</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Rimuovi utente</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Invia c&amp;ontatti</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>In&amp;vita utente</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>Chat privata con «%1»</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>Invia un trillo a «%1»</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>Rimuovi %1 utenti dall'elenco</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>Rimuovi «%1» dall'elenco</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>Invia c&amp;ontatti a «%1»</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>Invia un &amp;messaggio net send a «%1»</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>In&amp;vita l'utente «%1»</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (messaggi da leggere: %2)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1 su %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 è offline: ciò che scrivi non arriva</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>verifica della presenza di %1 in corso: prima dell'esito non si apre alcuna finestra</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>non si sa se %1 è presente: «Aggiorna» lo verifica e ti rende visibile ai tuoi contatti</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>non si sa se %1 è presente: «Aggiorna» lo verifica</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>Rimuovere l'utente «%1» della postazione «%2» (%3)?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>Rimuovere questi %1 utenti?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (ancora %1)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>Conferma rimozione utente</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>%1 contatti selezionati</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>«%1» non è l'indirizzo di un singolo computer</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>un nome è vuoto</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 compare già prima</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>non è in UTF-8</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>deve essere: %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>le virgolette non corrispondono</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>non ha tre campi</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>tutti nella rete ricevono ciò che si invia a %1</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 indica chiunque lo usi</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Riga %1 di %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>; riga %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; un altro errore</numerusform>
            <numerusform>; altri %n errori</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1. Da questo file non è stato importato alcun contatto.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>contatti importati da %1: %2; già presenti: %3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>; ignorato il tuo indirizzo</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>i nuovi contatti</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>contatti inviati a %1: %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>Ultimo messaggio: %1, %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>non è possibile scrivere nel registro</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>Contatti (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>è troppo grande per un elenco di contatti</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>contatti in %1: %2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>contatti in %1: %2; omessi perché nessun altro potrebbe raggiungerli: %3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>Un datagramma è in viaggio verso il tuo stesso indirizzo.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>Ricerca di un firewall in corso.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 non è più tra i contatti.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 non è un indirizzo come 192.168.1.20: non è possibile inviarvi nulla.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>Rimuovi il contatto e aggiungilo con il suo indirizzo.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>Nessuna richiesta inviata a %1: sei invisibile e rivelerebbe la tua presenza.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>Scegli prima un altro stato.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>Nessuna rete di questo computer porta a %1.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>Collega la rete in cui si trova il contatto.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>Nessuna richiesta inviata a %1, perché nulla è in ascolto della risposta.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>Risolvi prima il problema della porta.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>In attesa di una risposta da %1.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat è limitato a questo computer: usa la rete di loopback.</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>Nessuna rete con un indirizzo IPv4 è collegata.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>Inserisci il cavo oppure connettiti alla rete wireless usata dagli altri.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Connesso come %1.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>Il tuo indirizzo è %1, ma nessuna scheda di rete di questo computer lo possiede.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>Correggi NIMBCHAT_ADDRESS oppure collega quella rete.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>Collega una rete oppure scegli un altro indirizzo in Strumenti, Opzioni.</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>Il tuo indirizzo è %1 della scheda %2, su cui non è possibile trovare nessuno: porta a una sola macchina oppure a ciò che è in esecuzione all'interno di questa.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>Se gli altri sono in un'altra rete, correggi NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>Se gli altri sono in un'altra rete, scegli la sua scheda come tuo indirizzo in Strumenti, Opzioni.</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>Il tuo indirizzo è %1, raggiungibile solo dai programmi di questo computer.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>Avvia NIMB-Chat senza NIMBCHAT_ADDRESS per comunicare con altri computer.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>La scheda di rete %1, indicata nelle opzioni per il tuo indirizzo, non è collegata; il tuo indirizzo è %2 della scheda %3.</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>Collega quella scheda oppure scegli un altro indirizzo in Strumenti, Opzioni.</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>Il tuo indirizzo è %1, della scheda %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat è in ascolto sulla porta UDP %1.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>Il sistema non consente a NIMB-Chat di usare la porta %1.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>Scegli una porta superiore a 1023 in Strumenti, Opzioni, la stessa per tutti.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>Nulla è in ascolto: questa macchina non ha il tuo indirizzo.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Collega la rete che lo possiede; NIMB-Chat riprova ogni 5 secondi.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>La porta %1 è usata dal programma %2 (processo %3).</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Chiudi quel programma; NIMB-Chat riprova ogni 5 secondi.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>La porta %1 è usata da un altro programma.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>«sudo ss -ulpn sport = :%1» mostra quale.</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat non è in ascolto sulla porta %1.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat riprova ogni 5 secondi; se non basta, riavvialo.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>La porta UDP %1 è libera per NIMB-Chat, che non è in esecuzione.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat è in esecuzione (processo %1) e in ascolto sulla porta UDP %2.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>Il sistema non riserva spazio ai datagrammi in attesa.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>Il sistema conserva solo %1 KiB di datagrammi in attesa: se rispondono in molti nello stesso momento, alcuni vanno persi.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>«sudo sysctl -w net.core.rmem_max=4194304» gli consente di conservarne di più.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>Il sistema conserva %1 KiB di datagrammi in attesa.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>Un datagramma inviato a %1, il tuo indirizzo, è tornato.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>Un datagramma inviato a %1, il tuo indirizzo, non è tornato entro un secondo.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>Un firewall su questo computer blocca perfino i suoi stessi datagrammi, oppure l'indirizzo non è il suo.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>Nessun datagramma inviato al tuo indirizzo, perché nulla è in ascolto per riceverlo.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>Nessun datagramma inviato al tuo indirizzo, perché lo riceverebbe la copia in esecuzione: lo prova la sua diagnostica di rete.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>È possibile interpellare tutti su questo computer.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>Non c'è alcuna rete in cui sia possibile interpellare tutti.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>Aggiungi gli altri tramite il loro indirizzo: Utenti, Aggiungi utente offline.</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>Le richieste a tutti partono: %1.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>Il sistema rifiuta l'invio a tutti: %1.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>Un firewall su questo computer lo trattiene; consenti l'uscita di UDP verso quell'indirizzo.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>Nessun firewall rilevato su questo computer.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>Il firewall %1 è attivo e apre la porta UDP %2.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>Il firewall %1 è attivo e blocca la porta UDP %2: nessuno può raggiungerti.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>Per aprire la porta: %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>Il firewall %1 è attivo e, a quanto pare, apre la porta UDP %2 per alcuni e non per altri.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>Se gli altri non ti raggiungono, questo apre la porta per tutti: %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>Solo l'amministratore può vedere se un firewall blocca la porta UDP %1.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>«sudo nimb-chatctl doctor» lo indica.</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>Questo computer potrebbe avere un firewall, ma non c'è alcun programma che ne mostri tutte le regole.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>«sudo nft list ruleset» e «sudo iptables-legacy -S», dei pacchetti nftables e iptables, le mostrano.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>Il firewall %1 è attivo; solo l'amministratore può vedere se apre la porta UDP %2.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>Le schede %1 e %2 sono nella stessa rete; il tuo indirizzo è quello scelto.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>Le schede %1 e %2 sono nella stessa rete: gli altri potrebbero vederti con l'uno o l'altro indirizzo.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>Disattivane una oppure scegline una come tuo indirizzo in Strumenti, Opzioni.</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>Il tuo indirizzo è quello di %1, una VPN o un altro collegamento a una sola macchina.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>Se gli altri sono nella rete locale, scegli la sua scheda come tuo indirizzo in Strumenti, Opzioni.</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>È attiva una VPN (%1); il tuo indirizzo non ne fa parte.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>Non c'è alcuna VPN e nessuna rete ha due schede di questo computer.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1 ha risposto dopo %2 ms.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 non ha risposto, ma il computer all'indirizzo %2 è presente o lo era un attimo fa.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>Lì un firewall potrebbe bloccare UDP, NIMB-Chat potrebbe non essere in esecuzione o l'utente essere invisibile, oppure quella copia non ti conosce ancora: usate su entrambi i computer Utenti, Cerca chi è in rete. Esegui la diagnostica di rete anche lì.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 non ha risposto e nessun computer della tua rete ha l'indirizzo %2.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>È spento, ha ormai un altro indirizzo, è in un'altra rete, oppure il punto di accesso tiene separate le sue macchine (isolamento dei client).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 non ha risposto. L'indirizzo %2 è in un'altra rete, dietro un router o all'altra estremità di un tunnel.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>Ciò che porta fin lì deve lasciar passare UDP in entrambe le direzioni; inoltre lì possono esserci gli stessi problemi che in questa rete: un firewall, una copia non in esecuzione, un utente invisibile.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 non ha risposto. Il percorso verso %2 è quello del tuo indirizzo %3, ma le opzioni indicano la scheda %4, il cui indirizzo %5 potrebbe non essere raggiungibile da lì.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>Scegli «automatico» o la scheda di quella rete come tuo indirizzo in Strumenti, Opzioni.</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>messaggio privato</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>messaggio di conferenza</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>nessun comando</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>comando sconosciuto</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incompleto</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[a posto]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[dubbio]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[ERRORE]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>entrata</translation>
    </message>
    <message>
        <source>out</source>
        <translation>uscita</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>Scartati dall'avvio:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>Ultimi datagrammi:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>Da indirizzi che non sono contatti: %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>Comandi incompleti: %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>Comandi che nulla qui accetta: %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>Per finestre private non aperte: %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>Per conferenze inesistenti o non accessibili in quel modo: %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>Indirizzi che non possono diventare contatti: %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>Nuovi contatti con l'elenco pieno: %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>Messaggi con troppi altri in attesa di lettura: %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>Inviti con troppi altri in attesa: %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>Avatar con quelli di troppi sconosciuti già conservati: %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>Contatti che hanno fatto posto in un elenco pieno: %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>Avatar ed elenchi richiesti o inviati troppo spesso: %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>Datagrammi che non è stato possibile inviare: %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>Datagrammi persi prima di poter essere letti: %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>Oltre la coda consentita, dai mittenti più insistenti: %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>di cui da %1: %2</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>Faccine</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Persone</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>Animali e natura</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>Cibo e bevande</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>Viaggi e luoghi</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Attività</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Oggetti</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Simboli</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Bandiere</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>faccina che ride</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>faccina che piange</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>faccina sorridente</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>faccina triste</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>faccina neutra</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>faccina con la linguaccia</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>faccina che fa l'occhiolino</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>faccina che fa l'occhiolino con la linguaccia</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>faccina con un gran sorriso</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>Scegli una cartella di immagini</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>Scegli una cartella da inviare</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>Scegli una cartella in cui salvare</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>Scegli i file da inviare</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Imposta pagina</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>%1 è cambiato dopo essere stato offerto: il trasferimento è terminato.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Impossibile leggere %1.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 contiene troppi file per un solo invio.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>Impossibile inviare %1: non si riesce a leggerlo fino alla fine.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e %2 in più</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>Elementi di %2 omessi: %1 (%3). I collegamenti non vengono seguiti e ciò che non si può leggere non viene inviato.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>Impossibile inviare %1: non è un file o una cartella leggibile.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>In «%1» non c'è alcuna immagine da mostrare.</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>Le impostazioni sono vuote.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>Esiste una copia delle impostazioni, salvata il %1 alle %2. NIMB-Chat deve continuare con quella copia? Ciò che non viene usato è conservato con un altro nome.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>Esiste una copia delle impostazioni, salvata il %1 alle %2; NIMB-Chat la propone quando viene avviato senza nickname.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>La cronologia era danneggiata, perciò ne è stata iniziata una nuova, con i messaggi ancora leggibili: %1. Il vecchio file è %2.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>è stata scritta da una versione più recente di NIMB-Chat</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>La cronologia in %1 al momento non è utilizzabile (%2); ciò che era conservato è rimasto invariato.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>La cronologia in %1 è stata rimossa o sostituita mentre NIMB-Chat è in esecuzione: ciò che viene detto da ora in poi va in quella che si trova lì adesso.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>La cronologia in %1 al momento si può solo leggere (%2): finché non cambia, non viene conservato altro.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>La cartella %1 non esiste più.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>La connessione al mittente si è interrotta.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>Impossibile raggiungere il mittente.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>Il mittente ha interrotto il trasferimento o ha dato una risposta inutilizzabile.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>Il mittente ha dato una risposta inutilizzabile.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>Il mittente non lo offre più.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>È troppo grande per essere mostrato.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>Ciò che è arrivato non corrisponde a ciò che è stato inviato ed è stato rimosso.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>Impossibile rinominare %1: %2.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>Spazio insufficiente in %1.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>Spazio esaurito in %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>Impossibile continuare a scrivere %1: %2.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1 Ciò che è arrivato viene conservato.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>Impossibile inviare %1: nessuna porta di questo computer è libera.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 - %3 ti ha invitato a una conferenza</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>Nessun utente selezionato.</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 non era online: probabilmente non è arrivato</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>In attesa del ritorno di %1</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nuovi</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [oggi:%1 - ora:%2] Pronto »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 ora si chiama %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 è ora online ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 è ora offline ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 ha cambiato stato in «%2»  ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 ti ha inviato un trillo ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 ti ha inviato il contatto «%2» (%3) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- ricevuto comando non supportato (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- ricevuti dati non validi (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- ricevuto un altro datagramma incomprensibile da %1 ---</numerusform>
            <numerusform>--- ricevuti altri %n datagrammi incomprensibili da %1 ---</numerusform>
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
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Salva tutto</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Imposta pagina</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Anteprima di stampa</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>File recente 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>File recente 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>File recente 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>Scansione della &amp;rete...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>&amp;Aggiungi utente offline...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>&amp;Cerca chi è in rete</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>Cronolo&amp;gia...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>&amp;Importa contatti...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>&amp;Esporta contatti...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>Crea &amp;nuova...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>Mostra &amp;inviti...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>Mostra finestra di &amp;log</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>&amp;Trasferimenti...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opzioni...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommario</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>&amp;Cerca nell'aiuto...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuale</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>Suggerimento del &amp;giorno...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>&amp;Diagnostica di rete...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>Scorciatoie da &amp;tastiera...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>&amp;Utenti</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>&amp;Conferenza</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>&amp;Chat privata</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Invia un &amp;trillo</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>Invita alla conferenza n. &amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>Invita alla conferenza n. &amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>Invita alla conferenza n. &amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>Invita alla conferenza n. &amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>Invita alla conferenza n. &amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Invia c&amp;ontatti</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Rimuovi utente</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>In&amp;vita utente</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>&amp;Silenzia</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>&amp;Non conservare la cronologia</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>Invia &amp;file...</translation>
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
        <translation>%1, da leggere: %2</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>Alla chiusura precedente di NIMB-Chat: %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>Lo stato personalizzato memorizzato «%1» non inizia con la cifra di un'immagine: viene ignorato e andrà perso alla chiusura di NIMB-Chat.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- questo desktop non mostra icone nell'area di notifica: NIMB-Chat viene ridotto a icona invece che nascosto ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>I file ancora in viaggio verrebbero interrotti: %1. Chiudere comunque NIMB-Chat?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>Messaggi arrivati durante la chiusura del programma e andati persi: %1.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>Messaggi ancora da leggere alla chiusura del programma e andati persi: %1.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>Bianco perfetto</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>Abbastanza bianco</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>Verde brillante</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Verde chiaro</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>Quasi verde</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>Abbastanza verde</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>Quasi giallo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>Soprattutto giallo</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>Abbastanza rosso</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rosso scuro</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>Quasi nero</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>Il messaggio non è stato inviato: il programma smbclient non è installato. Installa il pacchetto smbclient (Debian, Ubuntu, Arch) o samba-client (Fedora) e invia di nuovo.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>Il messaggio non è stato inviato: impossibile scrivere un file temporaneo (%1).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>Il messaggio non è stato inviato: impossibile avviare %1 (%2).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>Il messaggio non è stato inviato: questo sistema non ha il comando «%1».</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>«%1» non è un nome né l'indirizzo di un computer o di una rete: nessuno è stato interpellato.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>Nessun indirizzo trovato per «%1»: nessuno è stato interpellato.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 ha troppi indirizzi per interpellarli uno a uno: l'intervallo più grande è /%2.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>%1 nuovi messaggi</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 nuovo messaggio</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 ti invita a una conferenza</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 ti ha inviato un trillo</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 nella conferenza n. %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>nuovi messaggi</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>nuovo messaggio</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>automatico</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non collegata)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>La porta deve essere un numero da 1 a 65535.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>Impossibile modificare l'avvio con il desktop: %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>Nessuna rete</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>Ora c'è una rete: il tuo indirizzo è %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>Il tuo indirizzo è ora %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>Questo computer è stato in sospensione: il tuo indirizzo è ancora %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>Le reti sono cambiate: il tuo indirizzo è ancora %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>La scheda di rete %1, indicata nelle opzioni per il tuo indirizzo, non è collegata; fino ad allora il tuo indirizzo è %2.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>Nessuna rete assegna a questo computer un indirizzo IPv4, perciò nessuno può raggiungerti. NIMB-Chat riprenderà non appena una lo farà.</translation>
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
        <translation>Occupato</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Assente</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisibile</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... aggiungi uno stato personalizzato...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Stato: %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>Testo di risposta automatica (se Occupato)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>Testo di risposta automatica (se Assente)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>Sei invisibile: aggiornando ti rendi visibile ai tuoi contatti</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>Chiede a tutti i contatti se sono presenti</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>Si conservano solo %1 stati personalizzati: «%2» dura fino alla chiusura di NIMB-Chat.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 ti sta inviando un trillo...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 sta scrivendo un messaggio...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>Questa immagine ha più di 50 megapixel. Scegline una più piccola.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Questa immagine è danneggiata.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>Questa immagine è danneggiata o di gran lunga troppo grande.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Non è un'immagine che NIMB-Chat possa leggere.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>Impossibile aprire «%1».</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>Porta %1 occupata</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>Porta %1 non disponibile</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Questa macchina non ha l'indirizzo che NIMB-Chat deve usare, perciò nessuno può raggiungerti sulla porta %1. Correggi NIMBCHAT_ADDRESS oppure collega la rete: NIMB-Chat riprova ogni 5 secondi.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>Il sistema non consente a NIMB-Chat di usare la porta %1, perciò nessuno può raggiungerti. Scegli una porta superiore a 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>Impossibile usare la rete sulla porta %1, perciò nessuno può raggiungerti. NIMB-Chat riprova ogni 5 secondi.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>La porta %1 è usata da un altro programma, perciò nessuno può raggiungerti. Chiudi quel programma: NIMB-Chat riprova ogni 5 secondi.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>La porta %1 è ora libera: sei raggiungibile.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>Sei di nuovo raggiungibile sulla porta %1.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 è online</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 è offline</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 è ora offline</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 ha cambiato stato in «%2»</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [oggi:%1 - ora:%2] Pronto »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 è offline: potrai inviare file al ritorno di %1.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 - NIMB-Chat - Finestra di chat privata</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>al suo posto c'è qualcosa che non è un file</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS è «%1», che non è un indirizzo IPv4; NIMB-Chat è invece in ascolto su tutte le interfacce.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>Il sistema concede %1 KiB ai datagrammi in attesa invece di %2 KiB: in caso di picchi improvvisi alcuni possono andare persi.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nessun programma su questo computer apre %1.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- NIMB-Chat non ha potuto salvare tutto alla chiusura precedente: le modifiche sono state recuperate ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- NIMB-Chat non ha potuto salvare tutto alla chiusura precedente: le modifiche sono state recuperate, tranne i valori danneggiati (%1) ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>Il NIMB-Chat in esecuzione non conosce il comando «%1».</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>Nessun contatto si chiama «%1» o ha questo indirizzo.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>Più contatti si chiamano «%1»: indicane uno con il suo indirizzo (%2).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 non è in linea: non è stato inviato nulla.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>Non c'è testo da inviare.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Impossibile leggere %1.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>«invisible» non ammette testo.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>Lo stato «%1» non esiste: ci sono online, busy, away e invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>Un messaggio contiene %1 caratteri e questo ne ha di più: non è stato inviato nulla.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>Il NIMB-Chat in esecuzione chiede ancora un nickname.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>Il comando è troppo lungo.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (righe rimanenti: %1)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (caratteri rimanenti: %1)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 risponde da %2 e da %3 e viene mostrato una sola volta</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>Nessuna rete di questo computer raggiunge %1: nessuno è stato interpellato.</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>richiesta di presenza inviata a: %1</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>ricerca interrotta: interpellati %1 indirizzi su %2</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>nessuno è stato interpellato: sei invisibile e la richiesta rivelerebbe a tutti la tua presenza</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>impossibile interpellare qualcuno: nessuna rete è collegata</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>tutti su %1</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>questo computer</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>nessun altro viene interpellato: sei invisibile</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 è il tuo stesso indirizzo: nessun altro riceve ciò che vi si invia</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>nessuno ha risposto: nessuna rete è collegata, perciò è stato interpellato solo questo computer</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>nessuno ha risposto: forse non c'è nessuno, un firewall blocca il traffico o la rete tiene separate le sue macchine; per scoprirlo: %1</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>Aiuto, Diagnostica di rete...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>risposte: %1 (%2); nuovi: %3</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>L'impostazione memorizzata %1 non può essere «%2»; viene usato %3.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>non è né una sezione né una chiave con il suo valore</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>non c'è nessuna chiave «%1» nella sezione «%2»</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1: altre righe che non dicono nulla: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, riga %2: %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il file è troppo grande</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>il file non è scritto in UTF-8</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>il disco è pieno</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>un altro programma sta usando il file</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>il file è danneggiato o contiene altro</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>memoria esaurita</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>il file è stato spostato o sostituito</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>il file o la sua cartella è di sola lettura</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>Le impostazioni non sono state salvate in %1 (%2): le modifiche successive all'ultimo salvataggio non vengono conservate; ciò che era memorizzato è rimasto invariato.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>Al momento non è possibile conservare le modifiche in %1 (%2): andrebbero perse se NIMB-Chat venisse chiuso prima di poterle salvare.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Impossibile creare la cartella delle impostazioni %1 (%2): il programma si avvia con i valori predefiniti e non conserva le impostazioni.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Impossibile creare il file delle impostazioni %1 (%2): il programma si avvia con i valori predefiniti e non conserva le impostazioni.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>Impossibile leggere le impostazioni in %1 (%2): il programma si avvia con i valori predefiniti e lascia il file com'è.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>Impossibile modificare le impostazioni in %1 (%2): le tue modifiche andranno perse alla chiusura del programma.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>non è stato possibile leggerle all'avvio del programma e andrebbero perse</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>Le impostazioni erano danneggiate o vuote a un avvio precedente di NIMB-Chat.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>Alcune impostazioni in %1 sono danneggiate (%2) e potrebbero differire da quelle salvate.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>La copia %1 non può sostituire le impostazioni (%2): il programma continua senza.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>Le impostazioni sono state salvate, ma non è stato possibile aggiornarne la copia in %1 (%2).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>Suggerimento del giorno - Suggerimento n. %1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>Nessun suggerimento da mostrare: il file TOTD.txt, fornito con il programma, manca o non è leggibile.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Suggerimento del giorno</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>Testo di risposta automatica</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>Ripristina</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>Impossibile leggere le impostazioni in %1: vengono usate quelle di una nuova copia: %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>Cerca un contatto (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>Cerca un contatto</translation>
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
        <translation>occupato</translation>
    </message>
    <message>
        <source>away</source>
        <translation>assente</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>non ancora noto</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>da inviare: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>da leggere: %1</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Nickname</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>Postazione</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Indirizzo IP</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>Finestra privata</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>N. avatar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>silenziato</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>Il tuo elenco è ancora vuoto. Basta un clic per chiedere chi c'è nella tua rete.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>Cerca chi è in rete</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>Mostra tutti</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>Qui nessuno si chiama «%1»</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>Conversazione</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>La conversazione è stata svuotata.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>Emoticon</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>Emoticon ed emoji (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>Lunghezza del messaggio</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>Testo in eccesso</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>Le conversazioni non vengono conservate.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>Invia file</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>Il resto è negli appunti.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>Invia &amp;file...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>Invia cart&amp;ella...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>Immagine %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>Impossibile inviare l'immagine: spazio insufficiente.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>È stata incollata un'immagine (%1 × %2).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>Un messaggio contiene al massimo %1 caratteri; gli ultimi %2 del testo incollato non sono entrati.</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> Conservarle? %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>per un anno</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>per sempre</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>Inviala</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>ignora</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>Invia file; per le cartelle usa la freccia o il tasto Freccia giù</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>Problemi precedenti con i file: %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>Copia il resto</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Rispondi</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>Notifica di NIMBChat!</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(ancora %1)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>Usati di recente</translation>
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
        <translation>Cerca un'emoji</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>Nessuna emoji ha questo nome. Prova un'altra parola.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nessun risultato</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>Emoticon</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>Questa copia di NIMB-Chat è stata compilata senza il componente che invia file.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>Si possono inviare al massimo %1 file alla volta: se sono di più, mettili in una cartella e invia quella.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>Si possono offrire al massimo %1 file contemporaneamente: interrompine alcuni in Strumenti &gt; Trasferimenti...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>Non c'è nessuno a cui inviare un file.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>I file non sono cifrati durante il trasferimento: chi può intercettare il traffico di questa rete può leggerli.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>tempo scaduto</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>non c'era nessuno da avvisare</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>interrotta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Destinatario</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Scadenza</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>in preparazione</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1% a %2</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>scaricamenti: %1</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>non ancora scaricato</translation>
    </message>
    <message>
        <source>over</source>
        <translation>terminata</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>terminata: %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>al primo scaricamento</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>all'interruzione</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>Alcuni file sono offerti all'indirizzo %1, che questo computer non ha più: nessuno può scaricarli finché il computer non lo riottiene o non li invii di nuovo.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>offerto all'indirizzo %1, che questo computer non ha più</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>Altri file: %1.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Salva tutto...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>Salva in una cartella tutto ciò che è offerto qui</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostra tutti</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>Mostra qui</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>Scarica l'immagine e la mostra qui, senza salvarla</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Salva...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>Nasconde questa riga, che in Strumenti &gt; Trasferimenti... rimane</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 da %2</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>Salva %1</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nessun programma su questo computer apre %1.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Non è un'immagine che NIMB-Chat possa leggere.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Immagine %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>Questa immagine è troppo grande per essere mostrata: ha più di %1 megapixel. Salvala.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>Cerca in questa conversazione; Ctrl+H cerca in tutto ciò che è conservato</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Maiuscole/minuscole</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>Precedente (Invio)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>Successivo (Maiusc+Invio)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Chiudi (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>Cerca in tutta la cronologia</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>Apre la finestra della cronologia</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Ricerca in corso...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nessun risultato</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1, %2, in «%3»</translation>
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
        <translation>Rifiutato</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>Rifiutato automaticamente</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Conferenza chiusa</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>Invito</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Arrivato</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Età</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>Font dei log</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famiglia</translation>
    </message>
    <message>
        <source> points</source>
        <translation> punti</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Grassetto</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Corsivo</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Anna: Buongiorno!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Famiglia:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Dimensione:</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (non installato)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nessun programma su questo computer apre %1.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>Alla riga più recente</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n nuova riga</numerusform>
            <numerusform>%n nuove righe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>Alcuni messaggi in attesa di invio non erano leggibili e sono andati persi.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>Ci sono già %1 messaggi in attesa di invio: non possono essercene altri.</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- un messaggio in attesa per %1, non più tra i contatti, non viene inviato ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- il messaggio in attesa per %1 è stato inviato ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- i %1 messaggi in attesa per %2 sono stati inviati ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>Ciò che hai scritto a %1 (%2) è in attesa di invio a %3. Ora lì c'è %4 (%5).

Inviarlo a %4?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- ciò che hai scritto a %1 il %2 non è stato inviato entro sette giorni ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>Nickname</translation>
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
        <translation>Occupato</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Assente</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>Presenza non nota</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>Non più tra i contatti</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>in attesa: %1</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>in attesa di invio: %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>Non si sa se %1 è presente: ciò che scrivi viene inviato al ritorno di %1</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>Non si sa se %1 è presente</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>Non si sa se %1 è presente: ciò che scrivi potrebbe non arrivare</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 è offline: ciò che scrivi viene inviato al ritorno di %1</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 è offline</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 è offline: ciò che scrivi non arriva</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 non è più tra i contatti: ciò che arriva da lì non viene mostrato</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>Non inviare in seguito</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>Invia al ritorno di %1</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>Ciò che è in attesa in questa conversazione non viene inviato e ciò che scrivi ora non attende</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>Ciò che hai scritto e non è arrivato viene conservato e inviato di nuovo al ritorno, come ciò che scrivi ora</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>Stat&amp;o:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>&amp;Testo:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>offerto</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>attende altri trasferimenti</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1% di %2, %3 al secondo</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1% di %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>in pausa al %1%</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>verifica in corso</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>salvato e verificato</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>salvato; il mittente non ha fornito dati per la verifica</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Mittente</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 non offre più questo file.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>verifica della parte già ricevuta: %1%</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>Testo (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Pagina web (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copia	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>Selezion&amp;a tutto	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Riduci</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Dimensione &amp;normale</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>&amp;Trova...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>&amp;Salva conversazione con nome...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Stam&amp;pa...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>Copia indirizzo del co&amp;llegamento</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(i suggerimenti richiedono più tempo)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(nessun suggerimento)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Disattivato</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>I file di questo dizionario sono illeggibili o danneggiati</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>Aggiungi al dizionario</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Controllo ortografico</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>Nickname</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>file ancora incompleti alla chiusura di NIMB-Chat: %2; per riprenderli: %1</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>Strumenti, Trasferimenti...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>Informazioni su NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>Immagine di NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>Un semplice programma di messaggistica che funziona con UDP/IP ed è pensato per l'uso in una piccola rete locale</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>Software libero con licenza MIT, senza alcuna garanzia. Nulla di ciò che si invia è cifrato: chiunque nella tua rete può leggerlo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>Informazioni di &amp;sistema...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Le informazioni di sistema non sono al momento disponibili</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>Aggiungi utente offline</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>Inserisci i dati dell'utente</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Risolvi</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>&amp;Nickname</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>&amp;Postazione</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>&amp;Indirizzo IP</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>Inviti a conferenze - NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>Inviti</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>Nessuno ti ha invitato a una conferenza. Iniziane una e invita i tuoi contatti dal loro menu.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>Inizia una conferenza</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accetta</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>&amp;Rifiuta</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>Rifiuta &amp;tutti</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Pulisci</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>Rimuove gli inviti non più validi</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>Rifiuta automaticamente dopo</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>minuti</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>Partecipanti</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>Aggiorna elenco</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>Espelli utente</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>Mostra/nascondi partecipanti</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>Non c'è ancora nessun altro.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>Invita qualcuno...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>Invita qualcun altro...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>Nessun altro contatto è online</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>Avatar</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>Mostra/nascondi avatar</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>a posto</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>dubbio</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>errore</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>in corso</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat - Diagnostica di rete</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>&amp;Controlla di nuovo</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Copia &amp;rapporto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>&amp;Questo contatto risponde?</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>Contatto da interpellare</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>Il tuo elenco è ancora vuoto</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>Chie&amp;di</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>Ultimi datagrammi</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>Nulla è stato ancora inviato o ricevuto.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>&amp;Mostra i testi dei messaggi</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>Nulla è stato scartato.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>Scartati:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat - Cronologia</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversazioni</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>Cerca in ciò che è selezionato</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>primo giorno</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Dal</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>ultimo giorno</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>from</source>
        <translation>dal</translation>
    </message>
    <message>
        <source>to</source>
        <translation>al</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Interrompi</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>&amp;Cancella...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>L'esportazione è stata interrotta.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>Tutte le conversazioni</translation>
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
        <translation>Da inviare (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>Ciò che hai scritto a contatti che non c'erano</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>Non inviato a %1</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>Da inviare a %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>Non è ancora conservato nulla. Nelle opzioni puoi scegliere se conservare le conversazioni.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>Nulla corrisponde alla ricerca.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Testo (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Pagina web (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>Cronologia di NIMB-Chat</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>Messaggi scritti: %1.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>Messaggi scritti finora: %1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>Il &amp;messaggio selezionato</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>Cancellare definitivamente il messaggio selezionato?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>La con&amp;versazione selezionata</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>Cancellare definitivamente tutto ciò che è conservato di «%1»?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>I &amp;giorni selezionati</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>Cancellare definitivamente tutto ciò che è conservato dei giorni selezionati?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tutto</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>Cancellare definitivamente tutto ciò che è conservato di tutte le conversazioni?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>Cancellare il messaggio selezionato? Non verrà inviato.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>Cancellazione in corso...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>Non è stato cancellato nulla: impossibile scrivere la cronologia.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>Cancellare definitivamente tutto ciò che è conservato di tutte le conversazioni? Ciò che è da inviare resta e verrà inviato.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat - Invita con net send</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Invia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>Testo &amp;predefinito</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>&amp;Testo personale</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>Testo personale</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>Invia al computer %2, per %1</translation>
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
        <translation>Ti diamo il benvenuto in NIMB-Chat!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>Scegli un nickname per questa sessione</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>&amp;Nickname:</translation>
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
        <translation>Log</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>Svuotato.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contatti</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>Dettagli dei contatti</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>Nickname e stato</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>Tutti i dettagli</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>A&amp;ggiorna</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>Silenzia trilli</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>&amp;Dettagli utenti</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>Contatto selezionato</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>Il tuo stato</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>Risposta automatica</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>Testo di risposta...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Stato: %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>Indirizzi interpellati</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>Non interpella nessun altro</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat - Scansione della rete</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>Cerca nuovi utenti NIMB-Chat nella rete</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>&amp;Nome della postazione / indirizzo IP:</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>Tutti in una rete di questo computer</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>Tutti in...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>Nota: puoi usare l'IP di broadcast per analizzare un'intera rete (ad esempio, se il tuo indirizzo IP è 192.168.1.1 e la maschera di sottorete è 255.255.255.0, l'indirizzo IP di broadcast è 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scansiona</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>Al momento questo computer non è in alcuna rete.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>&amp;Diagnostica di rete...</translation>
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
        <translation>Notifica di NIMBChat!</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>nascondi</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Eventi</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>&amp;Non mostrare i cambi di stato nelle finestre private</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>Disattiva il suono dei trilli in&amp;viati</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>Disattiva il suono dei trilli &amp;ricevuti</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>Mostra la finestra di chat privata in primo &amp;piano</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>Apri la finestra di chat privata ridotta a &amp;icona (predefinito)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>Chiudere una finestra privata la nasconde soltanto e ne conserva i &amp;messaggi</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>&amp;Disattiva la finestra di notifica</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>Se selezionata, non scorre alcun avviso, né di chi va e viene né di ciò che arriva</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>LiveT&amp;ype disattivato in modo predefinito</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>La c&amp;hiusura nasconde la finestra principale (l'icona di notifica la riapre)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>&amp;Avvisa di messaggi e inviti</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>Quando la loro finestra non è attiva e il tuo stato non è «Occupato»; mai per un contatto silenziato</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>Mo&amp;stra il testo dei messaggi</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>S&amp;uono per ogni messaggio</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>Suono &amp;quando qualcuno va online</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>Suono per ogni invit&amp;o</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat - Opzioni</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Tu</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Nickname:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>I tuoi stati personalizzati</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>Stati personalizzati:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>Suoni e notifiche</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>Avvisi mentre fai altro</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>Conserva conversazioni</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>per un anno</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>per sempre</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>Conserva conversazioni:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>Finestre private</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>Finestra principale e rete</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>Por&amp;ta UDP:</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>Il tuo indirizzo</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>Il tuo indiri&amp;zzo:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>quella del desktop</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Le modifiche hanno effetto dal prossimo avvio.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>Font dei log</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>&amp;Font...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>Vale per le nuove finestre; quelle aperte mantengono il proprio.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>Il tuo avatar</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>N&amp;essun avatar</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>Un'imma&amp;gine:</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>Immagini che cam&amp;biano:</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>L'immagine</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>&amp;Carica...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>Provenienza delle immagini</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>della fotocamera</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>di una cartella</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>Sceg&amp;li...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>È anche possibile trascinare qui o incollare un'immagine. Le immagini che cambiano terminano con NIMB-Chat; l'immagine singola viene conservata.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>chiedi</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>È indicato dalla variabile d'ambiente NIMBCHAT_ADDRESS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1, %2 punti</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>font del desktop: %1, %2 punti</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>Immagini (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Avvia con il desktop</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>A ogni accesso, ridotto a icona, con il tuo nickname</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat - Chat privata</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>Cosa sta scrivendo l'interlocutore</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>Trillo!</translation>
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
        <translation>L'interlocutore vede ciò che scrivi prima dell'invio</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Umore</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>Avatar</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>Avatar dell'interlocutore</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>Il tuo umore (non specificato)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>Il suo umore (non specificato)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Tu</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Interlocutore</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>Indirizzo dell'interlocutore</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>Il tuo umore (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>Il suo umore (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat - Invia contatti a «%1»</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>Aggiungi i contatti selezionati</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>Aggiungi tutti i contatti</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>Togli i contatti selezionati</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>Togli tutti i contatti</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>Seleziona i contatti da inviare</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>Contatti che è possibile inviare</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>Nessun altro contatto da inviare</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>Contatti scelti per l'invio</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>I contatti spostati qui verranno inviati</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Invia</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>Apre il manuale alla pagina della finestra</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>Cerca un contatto; basta anche scrivere nell'elenco</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>Cronologia delle conversazioni</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>Apre la finestra privata del contatto selezionato</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>Rimuove i contatti selezionati, previa conferma</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>Esce dalla ricerca di un contatto</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Invia il messaggio</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>Inizia una nuova riga</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>In una casella vuota: richiama l'ultimo messaggio</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>Sceglie un'emoji</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>Invia un trillo (finestre private)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Chiude la finestra</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>Esce dalla ricerca, dalle emoticon o dalle emoji</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Cerca nel log</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Copia la selezione</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Ingrandisce i caratteri</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Riduce i caratteri</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>Riporta i caratteri alla dimensione normale</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>Tutte le finestre</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Finestra principale</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversazioni</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat - Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>Lo sapevi?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Suggerimento</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat è software libero con licenza MIT. Puoi distribuirlo liberamente a tutti nella tua rete.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>&amp;Mostra suggerimenti all'avvio</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>&amp;Successivo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat - Trasferimenti</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>Ciò che offri finché NIMB-Chat è in esecuzione</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>Ciò che offri</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>Non offri nulla. Trascina file o cartelle su una conversazione oppure premi la graffetta.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>Scadenza dell'offerta</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>Per 24 ore</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>Fino al primo scaricamento</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Fino all'interruzione</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Interrompi</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>Ciò che ti offrono gli altri</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>Nessuno ti ha offerto file dall'avvio di NIMB-Chat.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>&amp;Salva...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausa</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Riprendi</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Apri cartella</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nessun programma su questo computer apre %1.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>Salva &amp;tutto...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>Salva in una cartella tutto ciò che è offerto e non è ancora stato scaricato</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>Salva &amp;tutto (%1)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>S&amp;carta...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>Rinuncia al file e rimuove ciò che ne è arrivato</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>Scartare "%1"? Ciò che ne è arrivato, %2, verrà rimosso dal disco.</translation>
    </message>
</context>
</TS>
