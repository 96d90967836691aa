<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>Veuillez remplir tous les champs</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>Vous ne pouvez pas vous ajouter vous-même...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>Cette adresse IP est déjà celle d’un autre utilisateur</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>Ce n’est pas l’adresse d’un seul ordinateur : tout le réseau reçoit ce qui y est envoyé.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>Cette adresse ne peut pas être conservée : elle marque la fin de la liste enregistrée.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>Ce n’est pas une adresse comme 192.168.1.20 : rien ne peut y être envoyé.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>Il n’y a pas de caméra.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>La caméra s’est arrêtée : %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>La caméra a été débranchée.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (vous)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>Conférence n° %1 (hébergée ici) - NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>Conférence n° %1 (hébergée par « %2 ») - NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [date : %1 - heure : %2] Conférence n° %3 prête »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>Conférence n° %1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>Conférence n° %1 de %2</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- Cette conférence est terminée.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- Vous avez exclu %1 de la conférence.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>Fermer cette fenêtre mettra fin à la conférence. Continuer ?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>Quitter la conférence ?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 a rejoint la conférence</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 a quitté la conférence.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 a refusé de participer à la conférence</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>Plus aucune fenêtre de conférence n’est disponible !</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>NIMB-Chat n’est pas lancé avec ce profil.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>Le NIMB-Chat en cours d’exécution ne répond pas.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>La commande est trop longue.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>Discussion &amp;privée</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Envoyer un &amp;buzz</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Supprimer l’utilisateur</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Envoyer des &amp;contacts</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>I&amp;nviter l’utilisateur</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>Discussion privée avec « %1 »</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>Envoyer un buzz à « %1 »</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>Supprimer %1 utilisateurs de la liste</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>Supprimer « %1 » de la liste</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>Envoyer des &amp;contacts à « %1 »</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>Envoyer un message &amp;net send à « %1 »</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>I&amp;nviter « %1 »</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (messages en attente de lecture : %2)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1 sur %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 est hors ligne : vos messages n’arriveront pas</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>vérification de la présence de %1 : aucune fenêtre ne s’ouvre avant la réponse</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>présence de %1 inconnue : « Actualiser » pose la question et vous montre à vos contacts</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>présence de %1 inconnue : « Actualiser » pose la question</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>Voulez-vous vraiment supprimer l’utilisateur « %1 » du poste « %2 » (%3) ?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>Voulez-vous vraiment supprimer ces %1 utilisateurs ?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (%1 de plus)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>%1 contacts sélectionnés</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>« %1 » n’est pas l’adresse d’un seul ordinateur</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>un nom est vide</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 figure déjà plus haut</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>ce fichier n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>il faut : %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>les guillemets ne concordent pas</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>il n’y a pas exactement trois champs</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>tout le réseau reçoit ce qui est envoyé à %1</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 désigne toujours l’ordinateur local</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Ligne %1 de %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation> ; ligne %1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform> ; %n autre erreur</numerusform>
            <numerusform> ; %n autres erreurs</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1. Aucun contact de ce fichier n’a été importé.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>contacts importés de %1 : %2 ; déjà présents : %3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation> ; ignorée : votre propre adresse</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>ces nouveaux contacts</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>contacts envoyés à %1 : %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>Dernier message : %1 @ %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>le registre ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>Contacts (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>il est trop volumineux pour une liste de contacts</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Lecture de %1 impossible : %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Écriture de %1 impossible : %2.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>contacts dans %1 : %2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>contacts dans %1 : %2 ; omis, car personne d’autre ne pourrait les joindre : %3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>Un datagramme est en route vers vous-même.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>Recherche d’un pare-feu.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 ne fait plus partie des contacts.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 n’est pas une adresse comme 192.168.1.20 : rien ne peut y être envoyé.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>Supprimez le contact et ajoutez-le avec son adresse.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>La question n’a pas été envoyée à %1 : vous êtes invisible, et elle révélerait votre présence.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>Choisissez d’abord un autre état.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>Aucun réseau de cet ordinateur ne mène à %1.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>Connectez le réseau sur lequel se trouve le contact.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>La question n’a pas été envoyée à %1, car rien n’est à l’écoute de la réponse.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>Réglez d’abord le problème du port.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>En attente d’une réponse de %1.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat doit rester sur cet ordinateur : il utilise le réseau de bouclage.</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>Aucun réseau avec une adresse IPv4 n’est connecté.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>Branchez le câble ou rejoignez le réseau sans fil que les autres utilisent.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Connecté avec %1.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>Votre adresse est %1, et aucune carte réseau de cet ordinateur ne la possède.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>Corrigez NIMBCHAT_ADDRESS ou connectez ce réseau.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>Connectez un réseau ou choisissez une autre adresse dans Outils &gt; Options.</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>Votre adresse est %1, celle de la carte %2, où personne ne peut être trouvé : elle ne mène qu’à une seule machine ou à ce qui s’exécute dans celle-ci.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>Si les autres sont sur un autre réseau, corrigez NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>Si les autres sont sur un autre réseau, choisissez l’adresse de la carte correspondante dans Outils &gt; Options.</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>Votre adresse est %1, que seuls les programmes de cet ordinateur peuvent joindre.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>Lancez NIMB-Chat sans NIMBCHAT_ADDRESS pour communiquer avec d’autres ordinateurs.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>La carte réseau %1, dont l’adresse est la vôtre selon les options, n’est pas connectée ; votre adresse est %2, celle de la carte %3.</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>Connectez cette carte ou choisissez une autre adresse dans Outils &gt; Options.</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>Votre adresse est %1, celle de la carte %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat écoute sur le port UDP %1.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>Le système n’autorise pas NIMB-Chat à utiliser le port %1.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>Choisissez un port supérieur à 1023 dans Outils &gt; Options, le même que tous les autres.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>Rien n’est à l’écoute : cette machine ne possède pas votre adresse.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Connectez le réseau qui la possède ; NIMB-Chat réessaie toutes les 5 secondes.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>Le port %1 est utilisé par le programme %2 (processus %3).</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Fermez ce programme ; NIMB-Chat réessaie toutes les 5 secondes.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>Le port %1 est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>« sudo ss -ulpn sport = :%1 » indique lequel.</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat n’écoute pas sur le port %1.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat réessaie toutes les 5 secondes ; si cela ne suffit pas, relancez-le.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>Le port UDP %1 est libre pour NIMB-Chat, qui n’est pas lancé.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat est lancé (processus %1) et écoute sur le port UDP %2.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>Le système ne réserve aucune place aux datagrammes en attente.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>Le système ne garde que %1 Kio de datagrammes en attente : quand beaucoup répondent à la fois, certains se perdent.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>« sudo sysctl -w net.core.rmem_max=4194304 » lui permet d’en garder davantage.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>Le système garde %1 Kio de datagrammes en attente.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>Un datagramme envoyé à %1, vous-même, est revenu.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>Un datagramme envoyé à %1, vous-même, n’est pas revenu en une seconde.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>Un pare-feu de cet ordinateur bloque même ses propres datagrammes, ou l’adresse n’est pas la sienne.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>Aucun datagramme n’a été envoyé à vous-même, car rien n’est à l’écoute.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>Aucun datagramme n’a été envoyé à vous-même, car l’instance déjà lancée le recevrait : son propre diagnostic réseau fait l’essai.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>Tout le monde sur cet ordinateur peut être interrogé.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>Il n’y a aucun réseau sur lequel tout le monde peut être interrogé.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>Ajoutez les autres par leur adresse : Utilisateurs &gt; Ajouter un utilisateur hors ligne.</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>Une question à tout le monde part bien : %1.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>Le système refuse l’envoi à tout le monde : %1.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>Un pare-feu de cet ordinateur la retient ; autorisez l’UDP sortant vers cette adresse.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>Aucun pare-feu n’est visible sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>Le pare-feu %1 est actif et autorise le port UDP %2.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>Le pare-feu %1 est actif et bloque le port UDP %2 : personne ne peut vous joindre.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>Pour ouvrir le port : %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>Le pare-feu %1 est actif et semble autoriser le port UDP %2 pour certains, mais pas pour d’autres.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>Si d’autres ne peuvent pas vous joindre, ceci ouvre le port à tout le monde : %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>Seul l’administrateur peut voir si un pare-feu bloque le port UDP %1.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>« sudo nimb-chatctl doctor » l’indique.</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>Cet ordinateur a peut-être un pare-feu, mais aucun programme présent n’en montre toutes les règles.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>« sudo nft list ruleset » et « sudo iptables-legacy -S » les montrent ; ils font partie des paquets nftables et iptables.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>Le pare-feu %1 est actif ; seul l’administrateur peut voir s’il autorise le port UDP %2.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>Les cartes %1 et %2 sont sur le même réseau ; votre adresse est celle qui a été choisie.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>Les cartes %1 et %2 sont sur le même réseau : les autres peuvent vous voir sous l’une ou l’autre adresse.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>Désactivez l’une d’elles ou choisissez l’adresse de l’une d’elles dans Outils &gt; Options.</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>Votre adresse est celle de %1, un VPN ou une autre liaison vers une seule machine.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>Si les autres sont sur le réseau local, choisissez l’adresse de la carte correspondante dans Outils &gt; Options.</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>Un VPN est actif (%1) ; votre adresse n’en fait pas partie.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>Il n’y a pas de VPN, et cet ordinateur n’a pas deux cartes sur un même réseau.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1 a répondu au bout de %2 ms.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 n’a pas répondu, mais l’ordinateur %2 est là, ou l’était il y a un instant.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>Là-bas, un pare-feu bloque peut-être l’UDP, NIMB-Chat n’est pas lancé, l’utilisateur est invisible, ou cette instance ne vous connaît pas encore : utilisez des deux côtés Utilisateurs &gt; Trouver tout le monde. Lancez-y aussi le diagnostic réseau.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 n’a pas répondu, et aucun ordinateur de votre réseau n’a l’adresse %2.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>Cet ordinateur est éteint, a changé d’adresse, se trouve sur un autre réseau, ou le point d’accès isole ses machines (isolation des clients).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 n’a pas répondu. L’adresse %2 est sur un autre réseau, derrière un routeur ou à l’autre bout d’un tunnel.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>Tout ce qui y mène doit laisser passer l’UDP dans les deux sens ; et les mêmes causes que sur un seul réseau sont possibles : un pare-feu, une instance non lancée, un utilisateur invisible.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 n’a pas répondu. Le chemin vers %2 passe par votre adresse %3, mais les options indiquent la carte %4, dont l’adresse %5 n’est peut-être pas joignable de là-bas.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>Choisissez « automatique » ou la carte de ce réseau comme adresse dans Outils &gt; Options.</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>message privé</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>message de conférence</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>pas une commande</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>commande inconnue</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incomplète</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[correct]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[douteux]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[ERREUR]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>entrant</translation>
    </message>
    <message>
        <source>out</source>
        <translation>sortant</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>Rejetés depuis le lancement :</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>Derniers datagrammes :</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>D’adresses qui ne sont pas des contacts : %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>Commandes incomplètes : %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>Commandes non prises en charge : %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>Pour des fenêtres privées non ouvertes : %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>Pour des conférences inexistantes ou inaccessibles : %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>Adresses qui ne peuvent pas devenir des contacts : %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>Nouveaux contacts quand la liste était pleine : %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>Messages quand trop d’autres attendaient d’être lus : %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>Invitations quand trop d’autres attendaient : %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>Avatars quand ceux de trop d’inconnus étaient conservés : %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>Contacts ayant cédé leur place dans une liste pleine : %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>Avatars et listes demandés ou envoyés trop souvent : %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>Datagrammes qui n’ont pas pu être envoyés : %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>Datagrammes perdus avant d’avoir pu être lus : %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>Excédent des expéditeurs les plus bavards : %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>dont %2 de %1</translation>
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
        <translation>Personnes</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>Animaux et nature</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>Nourriture et boissons</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>Voyages et lieux</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Activités</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symboles</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Drapeaux</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>visage qui rit</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>visage qui pleure</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>visage souriant</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>visage triste</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>visage neutre</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>visage qui tire la langue</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>clin d’œil</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>clin d’œil qui tire la langue</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>large sourire</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>Choisir un dossier d’images</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>Choisir un dossier à envoyer</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>Choisir un dossier d’enregistrement</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>Choisir les fichiers à envoyer</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>%1 a été modifié depuis sa mise à disposition ; son transfert est terminé.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 contient trop de fichiers pour un seul envoi.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>%1 ne peut pas être envoyé : impossible de le lire jusqu’à la fin.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>Éléments de %2 omis (%1) : %3. Les liens ne sont pas suivis et ce qui ne peut pas être lu n’est pas envoyé.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>%1 ne peut pas être envoyé : ce n’est ni un fichier ni un dossier lisible.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>Il n’y a aucune image à afficher dans « %1 ».</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>Les paramètres sont vides.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>Il existe une copie des paramètres, enregistrée le %1 à %2. NIMB-Chat doit-il continuer avec cette copie ? Ce qui n’est pas utilisé est conservé sous un autre nom.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>Il existe une copie des paramètres, enregistrée le %1 à %2 ; NIMB-Chat la propose quand il est lancé sans pseudo.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>L’historique était endommagé, un nouveau a donc été commencé ; %1 messages encore lisibles y ont été repris. L’ancien fichier est %2.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>une version plus récente de NIMB-Chat l’a écrit</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>L’historique dans %1 ne peut pas être utilisé actuellement (%2) ; ce qui était déjà conservé reste inchangé.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>L’historique dans %1 a été supprimé ou remplacé pendant que NIMB-Chat fonctionne : ce qui se dit désormais va dans celui qui s’y trouve maintenant.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>L’historique dans %1 ne peut actuellement qu’être lu (%2) : rien de plus n’est conservé tant que cela ne change pas.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>Le dossier %1 n’existe plus.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Écriture de %1 impossible : %2.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>La connexion à l’expéditeur a été interrompue.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>L’expéditeur est injoignable.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>L’expéditeur a interrompu l’envoi ou donné une réponse inutilisable.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>L’expéditeur a donné une réponse inutilisable.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>L’expéditeur ne le propose plus.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>Trop volumineux pour être affiché.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>Ce qui est arrivé n’est pas ce qui a été envoyé. Le fichier a été supprimé.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>Impossible de renommer %1 : %2.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>Il n’y a pas assez de place dans %1.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>Il n’y a plus de place dans %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>Impossible de continuer l’écriture de %1 : %2.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1 Ce qui est arrivé est conservé.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>%1 ne peut pas être envoyé : aucun port de cet ordinateur n’est libre pour cela.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 - %3 vous invite à une conférence</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>Aucun utilisateur sélectionné !</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 n’était pas en ligne : ce message n’est probablement pas arrivé</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>En attente du retour de %1</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nouveau</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [date : %1 - heure : %2] Prêt »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 s’appelle maintenant %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 est maintenant en ligne ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 est maintenant hors ligne ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 est maintenant à l’état « %2 »  ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 vous envoie un buzz ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 vous a envoyé le contact « %2 » (%3) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- commande non prise en charge reçue (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- données incompréhensibles reçues  (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- %n autre message incompréhensible reçu de %1 ---</numerusform>
            <numerusform>--- %n autres messages incompréhensibles reçus de %1 ---</numerusform>
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
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>Fichier récent 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>Fichier récent 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>Fichier récent 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>Recherche &amp;réseau...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>&amp;Ajouter un utilisateur hors ligne...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>&amp;Trouver tout le monde</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Historique...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>&amp;Importer des contacts...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>&amp;Exporter les contacts...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>&amp;Nouvelle conférence...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>Voir les &amp;invitations...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>Afficher le &amp;journal</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>&amp;Transferts...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Options...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>&amp;Rechercher dans l’aide...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>&amp;Astuce du jour...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>&amp;Diagnostic réseau...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>Raccourcis &amp;clavier...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>&amp;Utilisateurs</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>&amp;Conférence</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>Discussion &amp;privée</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Envoyer un &amp;buzz</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>Inviter à la conférence n° &amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>Inviter à la conférence n° &amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>Inviter à la conférence n° &amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>Inviter à la conférence n° &amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>Inviter à la conférence n° &amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Envoyer des &amp;contacts</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Supprimer l’utilisateur</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>I&amp;nviter l’utilisateur</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>Mettre en so&amp;urdine</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>N&amp;e pas conserver d’historique</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>Envoyer un &amp;fichier...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>NIMB-Chat: %1, %2</source>
        <translation>NIMB-Chat : %1, %2</translation>
    </message>
    <message>
        <source>%1, %2 unread</source>
        <translation>%1, non lus : %2</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>À la dernière fermeture de NIMB-Chat : %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>L’état personnalisé enregistré « %1 » ne commence pas par un chiffre d’image ; il est ignoré et disparaîtra définitivement à la fermeture de NIMB-Chat.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- ce bureau n’affiche pas d’icône de notification : NIMB-Chat est réduit au lieu d’être masqué ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>Des fichiers encore en cours de transfert seraient interrompus : %1. Quitter NIMB-Chat quand même ?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>Messages perdus, arrivés pendant la fermeture du programme : %1.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>Messages perdus, encore non lus à la fermeture du programme : %1.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>Blanc parfait</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>Plutôt blanc</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>Vert éclatant</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Vert clair</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>Presque vert</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>Plutôt vert</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>Presque jaune</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>Surtout jaune</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>Plutôt rouge</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rouge foncé</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>Presque noir</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>Le message n’a pas été envoyé : le programme smbclient n’est pas installé. Installez le paquet smbclient (Debian, Ubuntu, Arch) ou samba-client (Fedora), puis renvoyez le message.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>Le message n’a pas été envoyé : impossible d’écrire un fichier temporaire (%1).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>Le message n’a pas été envoyé : impossible de lancer %1 (%2).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>Le message n’a pas été envoyé : ce système n’a pas de commande « %1 ».</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>« %1 » n’est ni un nom ni l’adresse d’un ordinateur ou d’un réseau ; personne n’a été interrogé.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>Aucune adresse trouvée pour « %1 » ; personne n’a été interrogé.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 contient trop d’adresses pour les interroger une par une : la plus grande plage est /%2.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>%1 nouveaux messages</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 nouveau message</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 vous invite à une conférence</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 vous envoie un buzz</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 dans la conférence n° %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>nouveaux messages</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>nouveau message</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non connectée)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Le port doit être un nombre de 1 à 65535.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>Le démarrage avec le bureau ne peut pas être modifié : %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>Aucun réseau</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>Un réseau est maintenant disponible : votre adresse est %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>Votre adresse est maintenant %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>Cet ordinateur était en veille : votre adresse est toujours %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>Les réseaux ont changé : votre adresse est toujours %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>La carte réseau %1, dont l’adresse est la vôtre selon les options, n’est pas connectée ; en attendant, votre adresse est %2.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>Aucun réseau ne donne d’adresse IPv4 à cet ordinateur, personne ne peut donc vous joindre. NIMB-Chat reprendra dès que ce sera le cas.</translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation>En ligne</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Absent</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... ajouter un état personnalisé...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>Texte de la réponse automatique (Occupé)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>Texte de la réponse automatique (Absent)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>Vous êtes invisible : actualiser vous montre à vos contacts</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>Demander à tous les contacts s’ils sont là</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>Seuls %1 états personnalisés sont conservés : « %2 » dure jusqu’à la fermeture de NIMB-Chat.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 vous envoie un buzz...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 écrit un message...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>Cette image dépasse 50 mégapixels. Choisissez-en une plus petite.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Cette image est endommagée.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>Cette image est endommagée ou beaucoup trop grande.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Ce n’est pas une image que NIMB-Chat peut lire.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>« %1 » ne peut pas être ouvert.</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>Port %1 occupé</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>Port %1 indisponible</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Cette machine ne possède pas l’adresse indiquée à NIMB-Chat, personne ne peut donc vous joindre sur le port %1. Corrigez NIMBCHAT_ADDRESS ou connectez le réseau : NIMB-Chat réessaie toutes les 5 secondes.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>Le système n’autorise pas NIMB-Chat à utiliser le port %1, personne ne peut donc vous joindre. Choisissez un port supérieur à 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>Le réseau ne peut pas être utilisé sur le port %1, personne ne peut donc vous joindre. NIMB-Chat réessaie toutes les 5 secondes.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Le port %1 est utilisé par un autre programme, personne ne peut donc vous joindre. Fermez ce programme : NIMB-Chat réessaie toutes les 5 secondes.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>Le port %1 est maintenant libre : on peut vous joindre.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>On peut de nouveau vous joindre sur le port %1.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 est en ligne</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 est hors ligne</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 est maintenant hors ligne</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 est maintenant à l’état « %2 »</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [date : %1 - heure : %2] Prêt »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 est hors ligne : vous pourrez envoyer des fichiers au retour de %1.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 - NIMB-Chat - Discussion privée</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>autre chose qu’un fichier se trouve à sa place</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS vaut « %1 », qui n’est pas une adresse IPv4 ; NIMB-Chat écoute donc sur toutes les interfaces.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>Le système accorde %1 Kio aux datagrammes en attente au lieu de %2 Kio : en cas d’afflux soudain, certains peuvent se perdre.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Aucun programme de cet ordinateur n’ouvre %1.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- NIMB-Chat n’a pas pu tout enregistrer à sa dernière fermeture : les changements sont repris ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- NIMB-Chat n’a pas pu tout enregistrer à sa dernière fermeture : les changements sont repris, sauf %1 valeurs endommagées ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>Le NIMB-Chat en cours d’exécution ne connaît pas la commande « %1 ».</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>Aucun contact ne s’appelle « %1 » ni n’a cette adresse.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>Plusieurs contacts s’appellent « %1 » : désignez-en un par son adresse (%2).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 n’est pas en ligne : rien n’a été envoyé.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>Il n’y a pas de texte à envoyer.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>« invisible » n’admet pas de texte.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>L’état « %1 » n’existe pas, seulement online, busy, away et invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>Un message contient au plus %1 caractères et celui-ci en a davantage : rien n’a été envoyé.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>Le NIMB-Chat en cours d’exécution demande encore un pseudo.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>La commande est trop longue.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (%1 lignes de plus)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (%1 caractères de plus)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 répond depuis %2 et depuis %3 et n’apparaît qu’une fois</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>Aucun réseau de cet ordinateur ne mène à %1 ; personne n’a été interrogé.</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>question envoyée à %1 : qui est là ?</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>arrêt après %1 adresses interrogées sur %2</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>personne n’a été interrogé : vous êtes invisible, et la question révélerait votre présence à tous</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>personne ne peut être interrogé : aucun réseau n’est connecté</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>tout le monde sur %1</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>cet ordinateur</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>plus personne n’est interrogé : vous êtes invisible</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 est votre propre adresse : personne d’autre ne reçoit ce qui y est envoyé</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>aucune réponse : aucun réseau n’est connecté, seul cet ordinateur a donc été interrogé</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>aucune réponse : il n’y a peut-être personne, un pare-feu fait peut-être obstacle, ou le réseau isole ses machines ; %1 en cherche la cause</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>Aide &gt; Diagnostic réseau...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>réponses reçues : %1 (%2) ; nouveaux contacts : %3</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>Le paramètre enregistré %1 ne peut pas valoir « %2 » ; %3 est utilisé à la place.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>ce n’est ni une section ni une clé avec sa valeur</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>il n’y a pas de clé « %1 » dans la section « %2 »</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1 : autres lignes sans signification : %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2 : %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>le fichier est trop grand</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>le fichier n’est pas écrit en UTF-8</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>un autre programme utilise le fichier</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>le fichier est endommagé ou contient autre chose</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>la mémoire est épuisée</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>le fichier a été déplacé ou remplacé</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>le fichier ou son dossier est en lecture seule</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>Les paramètres n’ont pas été enregistrés dans %1 (%2) ; les changements depuis le dernier enregistrement ne sont pas conservés, ce qui était enregistré avant reste inchangé.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>Les changements ne peuvent pas être enregistrés dans %1 actuellement (%2) ; ils seraient perdus si NIMB-Chat se fermait avant d’avoir pu le faire.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Le dossier de paramètres %1 ne peut pas être créé (%2) ; le programme démarre avec ses valeurs par défaut et ne conserve aucun paramètre.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Le fichier de paramètres %1 ne peut pas être créé (%2) ; le programme démarre avec ses valeurs par défaut et ne conserve aucun paramètre.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>Les paramètres dans %1 ne peuvent pas être lus (%2) ; le programme démarre avec ses valeurs par défaut et laisse le fichier tel quel.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>Les paramètres dans %1 ne peuvent pas être modifiés (%2) ; vos changements seront oubliés à la fermeture du programme.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>ils n’ont pas pu être lus au démarrage du programme et seraient perdus</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>Les paramètres étaient endommagés ou vides lors du précédent démarrage de NIMB-Chat.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>Certains paramètres dans %1 sont endommagés (%2) et peuvent différer de ce qui avait été enregistré.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>La copie %1 ne peut pas remplacer les paramètres (%2) ; le programme continue sans eux.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>Les paramètres ont été enregistrés, mais leur copie dans %1 n’a pas pu être renouvelée (%2).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>Astuce du jour - Astuce n° %1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>Il n’y a aucune astuce à afficher : le fichier TOTD.txt, fourni avec le programme, est absent ou illisible.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Astuce du jour</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>Texte de la réponse automatique</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>Les paramètres dans %1 ne peuvent pas être lus, ceux d’une nouvelle installation sont utilisés : %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>Rechercher un contact (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>Rechercher un contact</translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation>en ligne</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupé</translation>
    </message>
    <message>
        <source>away</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>pas encore connu</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>à envoyer : %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>non lus : %1</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Pseudo</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>Poste</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Code d’état</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>Fenêtre privée</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>N° d’avatar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>en sourdine</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>Votre liste est encore vide. Un clic interroge tout le monde sur votre réseau.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>Trouver tout le monde</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>Afficher tout le monde</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>Personne ici ne s’appelle « %1 »</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>Conversation</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>La conversation a été effacée.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>Émoticônes</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>Émoticônes et émojis (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>Longueur du message</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>Texte en trop</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>Les conversations ne sont pas conservées.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>Envoyer des fichiers</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>Le reste est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>Envoyer des &amp;fichiers...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>Envoyer un &amp;dossier...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>Image %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>L’image ne peut pas être envoyée, faute de place.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>Une image a été collée (%1 × %2).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>Un message contient au plus %1 caractères ; les %2 derniers du texte collé n’ont pas pu être insérés.</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> Les conserver : %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>pendant un an</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>indéfiniment</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>L’envoyer</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>ne pas l’envoyer</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>Envoyer des fichiers ; pour un dossier, utilisez la flèche ou la touche Bas</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>Problèmes précédents avec des fichiers : %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>Copier le reste</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Répondre</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>Notification NIMBChat</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(%1 de plus)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>Récents</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiPicker</name>
    <message>
        <source>Emoji</source>
        <translation>Émojis</translation>
    </message>
    <message>
        <source>Find an emoji</source>
        <translation>Rechercher un émoji</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>Aucun émoji ne porte ce nom. Essayez un autre mot.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>Émoticônes</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>Cette version de NIMB-Chat a été compilée sans l’envoi de fichiers.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>Au plus %1 fichiers peuvent être envoyés à la fois : placez-les dans un dossier et envoyez celui-ci.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>Au plus %1 fichiers peuvent être proposés à la fois : arrêtez-en certains dans Outils &gt; Transferts...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>Il n’y a personne ici à qui envoyer un fichier.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>Les fichiers ne sont pas chiffrés pendant leur transfert : quiconque peut écouter ce réseau peut les lire.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>délai écoulé</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>aucun destinataire présent</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêt manuel</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Pour</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>en préparation</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1 % vers %2</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>téléchargements : %1</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>pas encore téléchargé</translation>
    </message>
    <message>
        <source>over</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>terminé : %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>au premier téléchargement</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>à l’arrêt manuel</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>Des fichiers sont proposés à l’adresse %1, que cet ordinateur ne possède plus : personne ne peut les télécharger tant qu’il ne l’a pas retrouvée ou que vous ne les avez pas renvoyés.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>proposé à l’adresse %1, que cet ordinateur ne possède plus</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>Autres fichiers : %1.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Tout enregistrer...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>Enregistre tout ce qui est proposé ici dans un même dossier</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>Afficher ici</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>Télécharge l’image et l’affiche ici, sans l’enregistrer</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Enregistrer...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>Masque cette ligne ; le menu Outils &gt; Transferts... la conserve</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1, de %2</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>Enregistrer %1</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Aucun programme de cet ordinateur n’ouvre %1.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Ce n’est pas une image que NIMB-Chat peut lire.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Image %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>Cette image est trop grande pour être affichée : elle a plus de %1 mégapixels. Enregistrez-la.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>Recherche dans cette conversation ; Ctrl+H recherche dans tout ce qui a été conservé</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>Précédent (Entrée)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>Suivant (Maj+Entrée)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Fermer (Échap)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>Rechercher dans tout l’historique</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>Ouvre la fenêtre de l’historique</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Recherche...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1, %2, dans « %3 »</translation>
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
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusée</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>Refusée automatiquement</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Terminée</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>Invitation</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Reçue</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>Police des journaux</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source> points</source>
        <translation> points</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Anne : Bonjour !</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Famille :</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Taille :</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (non installée)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Aucun programme de cet ordinateur n’ouvre %1.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>Aller à la dernière ligne</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n nouvelle ligne</numerusform>
            <numerusform>%n nouvelles lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>Parmi les messages en attente d’envoi, certains n’ont pas pu être lus et sont perdus.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>%1 messages attendent déjà d’être envoyés ; il n’y a pas de place pour d’autres.</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- un message en attente pour %1, qui ne fait plus partie des contacts, n’est pas envoyé ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- le message en attente pour %1 a été envoyé ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- les %1 messages en attente pour %2 ont été envoyés ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>Votre message pour %1 (%2) attend d’être envoyé à %3. %4 (%5) s’y trouve maintenant.

L’envoyer à %4 ?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- votre message pour %1 du %2 n’a pas été envoyé en sept jours ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>Pseudo</translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation>En ligne</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Absent</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>Présence inconnue</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>Ne fait plus partie des contacts</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>en attente : %1</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>en attente d’envoi : %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1 ; %2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>Présence de %1 inconnue : vos messages seront envoyés au retour de %1</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>Présence de %1 inconnue</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>Présence de %1 inconnue : vos messages n’arriveront peut-être pas</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 est hors ligne : vos messages seront envoyés au retour de %1</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 est hors ligne</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 est hors ligne : vos messages n’arriveront pas</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 ne fait plus partie des contacts : ses messages ne sont pas affichés</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>Ne pas envoyer plus tard</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>Envoyer au retour de %1</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>Les messages en attente dans cette conversation ne sont pas envoyés, et ceux que vous écrivez maintenant ne sont pas mis en attente</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>Les messages qui ne sont pas arrivés sont conservés et renvoyés à ce moment-là, ainsi que ceux que vous écrivez maintenant</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>É&amp;tat :</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>Te&amp;xte :</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>proposé</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>en attente des autres transferts</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1 % de %2, %3/s</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1 % de %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>en pause à %1 %</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>vérification en cours</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>enregistré et vérifié</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>enregistré ; l’expéditeur n’a rien fourni pour le vérifier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 ne propose plus ce fichier.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>vérification de la partie déjà reçue : %1 %</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Page web (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Écriture de %1 impossible : %2.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copier	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>&amp;Tout sélectionner	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Taille &amp;normale</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>Rec&amp;hercher...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>&amp;Enregistrer la conversation sous...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>Copier l’adresse du &amp;lien</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(les suggestions se font attendre)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(aucune suggestion)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Désactivée</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>Les fichiers de ce dictionnaire sont illisibles ou endommagés</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>Ajouter au dictionnaire</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Orthographe</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>Pseudo</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>fichiers encore incomplets à la fermeture de NIMB-Chat : %2 ; %1 permet de les reprendre</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>Outils &gt; Transferts...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>À propos de NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>Image de NIMB-Chat</translation>
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
        <translation>Une messagerie simple fonctionnant sur UDP/IP, conçue pour les petits réseaux locaux</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>Logiciel libre sous licence MIT, sans aucune garantie. Rien de ce qui est envoyé n’est chiffré : tout le monde sur votre réseau peut le lire.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>Infos &amp;système...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Les informations système ne sont pas disponibles actuellement</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>Ajouter un utilisateur hors ligne</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>Informations sur l’utilisateur</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Résoudre</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>&amp;Pseudo</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>Pos&amp;te</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>&amp;Adresse IP</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>Invitations à des conférences - NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>Invitations</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>Vous n’avez reçu aucune invitation. Créez vous-même une conférence et invitez-y vos contacts depuis leur menu.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>Créer une conférence</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accepter</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>&amp;Refuser</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>&amp;Tout refuser</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>Retire les invitations terminées</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>Refuser automatiquement après</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>minute(s)</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>Participants</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>Actualiser la liste</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>Exclure</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>Afficher/masquer les participants</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>Il n’y a encore personne d’autre ici.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>Inviter quelqu’un...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>Inviter quelqu’un d’autre...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>Aucun autre contact n’est en ligne</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>Avatars</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>Afficher/masquer les avatars</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>correct</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>douteux</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat - Diagnostic réseau</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Vérifier à &amp;nouveau</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Copier le &amp;rapport</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>Ce &amp;contact répond-il ?</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>Contact à interroger</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>Votre liste est encore vide</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>&amp;Interroger</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>Derniers datagrammes</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>Rien n’a encore été envoyé ni reçu.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>Afficher le &amp;texte des messages</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>Rien n’a été rejeté.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>Rejetés :</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat - Historique</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversations</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>Rechercher dans la sélection</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>premier jour</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>dernier jour</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>from</source>
        <translation>du</translation>
    </message>
    <message>
        <source>to</source>
        <translation>au</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>E&amp;ffacer...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>L’exportation a été arrêtée.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>Toutes les conversations</translation>
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
        <translation>À envoyer (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>Ce que vous avez écrit à des contacts absents</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>Non envoyé à %1</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>À envoyer à %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>Rien n’est encore conservé. Les options permettent de choisir si les conversations le sont.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>Rien ne correspond à votre recherche.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Page web (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Écriture de %1 impossible : %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>Historique de NIMB-Chat</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>Messages exportés : %1.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>Messages exportés jusqu’ici : %1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>Le &amp;message sélectionné</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>Effacer définitivement le message sélectionné ?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>La &amp;conversation sélectionnée</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>Effacer définitivement tout ce qui est conservé de « %1 » ?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>Les &amp;jours choisis</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>Effacer définitivement tout ce qui est conservé des jours choisis ?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tout</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>Effacer définitivement tout ce qui est conservé de toutes les conversations ?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>Effacer le message sélectionné ? Il ne sera pas envoyé.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>Effacement...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>Rien n’a été effacé : l’historique ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>Effacer définitivement tout ce qui est conservé de toutes les conversations ? Ce qui reste à envoyer est gardé et sera envoyé.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat - Invitation par net send</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>Texte &amp;standard</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>Texte &amp;personnalisé</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>Texte personnalisé</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>Envoyer à l’ordinateur %2, pour %1</translation>
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
        <translation>Bienvenue dans NIMB-Chat !</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>Veuillez choisir un pseudo pour cette session</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>&amp;Pseudo :</translation>
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
        <translation>Journal</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>Journal effacé.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>Détails des contacts</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>Pseudo et état</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>Détails complets</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>Actuali&amp;ser</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>Buzz muet</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>Contact sélectionné</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>Votre état</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>Réponse auto</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>Texte de réponse...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>Adresses interrogées</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>N’interroge plus personne</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat - Recherche réseau</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>Rechercher de nouveaux utilisateurs de NIMB-Chat sur le réseau</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>Nom du &amp;poste ou adresse IP :</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>Tout le monde sur un réseau de cet ordinateur</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>Tout le monde sur...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>Remarque : l’adresse IP de diffusion permet d’interroger tout un réseau (par exemple, si votre adresse IP est 192.168.1.1 et votre masque de sous-réseau 255.255.255.0, votre adresse de diffusion est 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>Cet ordinateur n’est actuellement sur aucun réseau.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>&amp;Diagnostic réseau...</translation>
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
        <translation>Notification NIMBChat</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>masquer</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Ce qui s’est passé</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>&amp;Masquer les changements d’état dans les fenêtres privées</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>Couper le so&amp;n des buzz envoyés</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>Couper le son des buzz &amp;reçus</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>Afficher la fenêtre privée au &amp;premier plan</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>Ouvrir la fenêtre privée réd&amp;uite (par défaut)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>Une fenêtre privée fermée est seu&amp;lement masquée et garde ses messages</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>&amp;Désactiver la fenêtre de notification</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>Si cette case est cochée, aucune fenêtre n’apparaît, ni pour les arrivées et départs ni pour les messages reçus</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>LiveType désactivé par dé&amp;faut</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>Le &amp;bouton Fermer masque la fenêtre principale (l’icône de notification la réaffiche)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>Signaler les messages et les in&amp;vitations</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>Tant que leur fenêtre n’est pas active et que vous n’êtes pas à l’état « Occupé » ; un contact en sourdine n’est jamais signalé</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>Afficher le con&amp;tenu des messages</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>&amp;Jouer un son à chaque message</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>Jouer un son &amp;quand quelqu’un se connecte</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>Jouer un son à chaque &amp;invitation</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat - Options</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Vous</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Pseudo :</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>Vos états personnalisés</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>Vos états :</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>Sons et notifications</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>Messages reçus quand vous êtes ailleurs</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>Conserver les conversations</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>pendant un an</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>indéfiniment</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>Conserver les conversations :</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>Fenêtres privées</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>Fenêtre principale et réseau</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>P&amp;ort UDP :</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>Votre adresse</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>Votre &amp;adresse :</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>celle du bureau</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Un changement prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>Police des journaux</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>Poli&amp;ce...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>Les nouvelles fenêtres l’utilisent ; celles déjà ouvertes gardent la leur.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>Votre avatar</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>Pa&amp;s d’avatar</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>Image fi&amp;xe :</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>Images c&amp;hangeantes :</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>L’image</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>Char&amp;ger...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>Source des images</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>de la caméra</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>d’un dossier</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>Dossi&amp;er...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>Une image peut aussi être déposée ou collée ici. Les images changeantes disparaissent à la fermeture de NIMB-Chat ; l’image fixe est conservée.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>me demander</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>Définie par la variable d’environnement NIMBCHAT_ADDRESS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1, %2 points</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>police du bureau : %1, %2 points</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>Images (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Démarrer avec le bureau</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>À chaque ouverture de session, réduit, sous votre pseudo</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat - Discussion privée</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>Ce que le contact est en train d’écrire</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>Buzz !</translation>
    </message>
    <message>
        <source>(CTRL+G)</source>
        <translation>(CTRL+G)</translation>
    </message>
    <message>
        <source>LiveType!</source>
        <translation>LiveType !</translation>
    </message>
    <message>
        <source>The other one sees what you type before you send it</source>
        <translation>L’autre voit ce que vous tapez avant que vous ne l’envoyiez</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Humeur</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>Avatar</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>Avatar du contact</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>Votre humeur (non précisée)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>Son humeur (non précisée)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Vous</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>Adresse du contact</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>Votre humeur (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>Son humeur (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat - Envoyer des contacts à « %1 »</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>Ajouter les contacts sélectionnés</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>Ajouter tous les contacts</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>Retirer les contacts sélectionnés</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>Retirer tous les contacts</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>Sélectionnez les contacts à envoyer</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>Contacts pouvant être envoyés</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>Plus aucun contact à envoyer</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>Contacts choisis pour l’envoi</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>Les contacts placés ici seront envoyés</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>Ouvrir le manuel à la page de la fenêtre</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>Rechercher un contact ; écrire dans la liste a le même effet</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>Ce qui a été conservé des conversations</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>Ouvrir la fenêtre privée du contact sélectionné</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>Supprimer les contacts sélectionnés, après confirmation</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>Quitter la recherche d’un contact</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Envoyer le message</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>Commencer une nouvelle ligne</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>Dans un champ vide : rappeler le dernier message</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>Choisir un émoji</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>Envoyer un buzz (fenêtres privées)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>Quitter la recherche, les émoticônes ou les émojis</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Rechercher dans le journal</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Copier la sélection</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Agrandir le texte</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Réduire le texte</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>Rétablir la taille du texte</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>Toutes les fenêtres</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Fenêtre principale</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversations</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat - Raccourcis clavier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>Le saviez-vous ?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Astuce</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat est un logiciel libre sous licence MIT. N’hésitez pas à le transmettre à tout le monde sur votre réseau.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>Afficher les astuces au &amp;démarrage</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>Astuce &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat - Transferts</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>Ce que vous proposez, tant que NIMB-Chat est ouvert</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>Ce que vous proposez</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>Rien n’est proposé. Déposez des fichiers ou des dossiers sur une conversation, ou cliquez-y sur le trombone.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>Durée de l’offre</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>Pendant 24 heures</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>Jusqu’au premier téléchargement</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Jusqu’à l’arrêt manuel</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>Ce que les autres vous proposent</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>Personne ne vous a proposé de fichier depuis le lancement de NIMB-Chat.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>&amp;Enregistrer...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Aucun programme de cet ordinateur n’ouvre %1.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>&amp;Tout enregistrer...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>Enregistre dans un même dossier tout ce qui est proposé et pas encore téléchargé</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>&amp;Tout enregistrer (%1)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>A&amp;bandonner...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>Renonce au fichier et supprime ce qui en est arrivé</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>Abandonner « %1 » ? Ce qui en est arrivé, %2, sera supprimé du disque.</translation>
    </message>
</context>
</TS>
