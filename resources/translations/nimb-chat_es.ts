<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>Rellene todos los campos</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>No puede agregarse a sí mismo...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>Otro usuario ya utiliza esa dirección IP</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>Esta no es la dirección de un solo equipo: lo que se envía a ella llega a todos en la red.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>Esta dirección no se puede guardar: marca el final de la lista almacenada.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>No es una dirección como 192.168.1.20: no se le puede enviar nada.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>No hay ninguna cámara.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>La cámara se ha detenido: %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>Se ha desconectado la cámara.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (usted)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>Conferencia n.º %1 (organizada aquí) - NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>Conferencia n.º %1 (organizada por «%2») - NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [fecha: %1 - hora: %2] Conferencia n.º %3 lista »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>Conferencia n.º %1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>Conferencia n.º %1 de %2</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- Esta conferencia ha terminado.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- Ha expulsado a %1 de la conferencia.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>Si cierra esta ventana, la conferencia terminará. ¿Continuar?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>¿Abandonar la conferencia?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 se ha unido a la conferencia</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 ha abandonado la conferencia.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 no ha querido participar en la conferencia</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>No quedan más ventanas de conferencia.</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>NIMB-Chat no se está ejecutando con este perfil.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>El NIMB-Chat en ejecución no responde.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>La orden es demasiado larga.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>Chat &amp;privado</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Enviar &amp;zumbido</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>E&amp;liminar usuario</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Enviar &amp;contactos</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>&amp;Invitar al usuario</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>Chat privado con «%1»</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>Enviar zumbido a «%1»</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>Eliminar %1 usuarios de la lista</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>Eliminar a «%1» de la lista</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>Enviar &amp;contactos a «%1»</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>Enviar &amp;mensaje (net send) a «%1»</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>&amp;Invitar a «%1»</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (mensajes sin leer: %2)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1 en %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 está sin conexión: lo que escriba no llegará</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>se está preguntando si %1 está en línea: no se abre ninguna ventana hasta saberlo</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>no se sabe si %1 está en línea: «Actualizar» lo pregunta, y sus contactos le verán</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>no se sabe si %1 está en línea: «Actualizar» lo pregunta</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>¿Seguro que desea eliminar al usuario «%1» del equipo «%2» (%3)?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>¿Seguro que desea eliminar a estos %1 usuarios?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (%1 más)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>Confirmar la eliminación</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>%1 contactos seleccionados</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>«%1» no es la dirección de un solo equipo</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>hay un nombre vacío</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 ya aparecía antes</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>no está escrito en UTF-8</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>debe ser: %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>las comillas no concuerdan</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>no tiene tres campos</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>lo que se envía a %1 llega a todos en la red</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 designa siempre al propio equipo</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Línea %1 de %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>; línea %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; %n más</numerusform>
            <numerusform>; %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1. No se ha importado ningún contacto de este archivo.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>contactos importados de %1: %2; ya existentes: %3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>; omitida: su propia dirección</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>los nuevos contactos</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>contactos enviados a %1: %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>Último mensaje: %1, %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>no se puede escribir en el registro</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>Contactos (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>es demasiado grande para una lista de contactos</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>contactos en %1: %2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>contactos en %1: %2; omitidos porque nadie más podría llegar a ellos: %3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>Se está enviando un datagrama a usted mismo.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>Buscando un cortafuegos.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 ya no es un contacto.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 no es una dirección como 192.168.1.20: no se le puede enviar nada.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>Elimine el contacto y agréguelo con su dirección.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>No se ha preguntado a %1: está usted invisible y la pregunta revelaría su presencia.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>Elija antes otro estado.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>Ninguna red de este equipo lleva a %1.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>Conecte la red en la que está el contacto.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>No se ha preguntado a %1, pues no hay nada a la escucha de la respuesta.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>Solucione antes el problema del puerto.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>Esperando una respuesta de %1.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat tiene orden de no salir de este equipo: utiliza la red de bucle invertido.</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>No hay ninguna red conectada con dirección IPv4.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>Conecte el cable o únase a la red inalámbrica que utilizan los demás.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Equipo conectado como %1.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>Su dirección es %1 y ninguna tarjeta de red de este equipo la tiene.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>Corrija NIMBCHAT_ADDRESS o conecte esa red.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>Conecte una red o elija otra dirección propia en Herramientas, Opciones.</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>Su dirección es %1, de la tarjeta %2, en la que no se puede encontrar a nadie: lleva a una única máquina o a lo que se ejecuta dentro de esta.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>Si los demás están en otra red, corrija NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>Si los demás están en otra red, elija la tarjeta de esa red como dirección propia en Herramientas, Opciones.</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>Su dirección es %1, a la que solo pueden llegar los programas de este equipo.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>Inicie NIMB-Chat sin NIMBCHAT_ADDRESS para comunicarse con otros equipos.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>La tarjeta de red %1, cuya dirección figura como propia en las opciones, no está conectada; su dirección es %2, de la tarjeta %3.</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>Conecte esa tarjeta o elija otra dirección propia en Herramientas, Opciones.</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>Su dirección es %1, de la tarjeta %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat escucha en el puerto UDP %1.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>El sistema no permite a NIMB-Chat utilizar el puerto %1.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>Elija en Herramientas, Opciones un puerto superior a 1023, el mismo que todos los demás.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>No hay nada a la escucha: esta máquina no tiene su dirección.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Conecte la red que la tiene; NIMB-Chat lo intenta de nuevo cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>El programa %2 (proceso %3) está utilizando el puerto %1.</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Cierre ese programa; NIMB-Chat lo intenta de nuevo cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>Otro programa está utilizando el puerto %1.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>«sudo ss -ulpn sport = :%1» muestra cuál.</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat no escucha en el puerto %1.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat lo intenta de nuevo cada 5 segundos; si no basta, reinícielo.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>El puerto UDP %1 está libre para NIMB-Chat, que no se está ejecutando.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat se está ejecutando (proceso %1) y escucha en el puerto UDP %2.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>El sistema no reserva espacio para los datagramas en espera.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>El sistema solo guarda %1 KiB de datagramas en espera: cuando muchos responden a la vez, algunos se pierden.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>«sudo sysctl -w net.core.rmem_max=4194304» le permite guardar más.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>El sistema guarda %1 KiB de datagramas en espera.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>Un datagrama enviado a %1, usted mismo, ha vuelto.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>Un datagrama enviado a %1, usted mismo, no ha vuelto en un segundo.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>Un cortafuegos de este equipo bloquea incluso sus propios datagramas, o la dirección no es la suya.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>No se ha enviado ningún datagrama a usted mismo, pues no hay nada a la escucha.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>No se ha enviado ningún datagrama a usted mismo, pues lo recibiría la instancia en ejecución: lo prueba su propio diagnóstico de red.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>Se puede preguntar a todos en este equipo.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>No hay ninguna red en la que se pueda preguntar a todos.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>Agregue a los demás por su dirección: Usuarios, Agregar usuario sin conexión.</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>Las preguntas a todos salen de este equipo: %1.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>El sistema no permite enviar a todos: %1.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>Un cortafuegos de este equipo lo impide; permita la salida de UDP a esa dirección.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>No se ve ningún cortafuegos en este equipo.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>El cortafuegos %1 está activo y deja entrar por el puerto UDP %2.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>El cortafuegos %1 está activo y bloquea el puerto UDP %2: nadie puede comunicarse con usted.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>Esto abre el puerto: %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>El cortafuegos %1 está activo y, según parece, deja entrar por el puerto UDP %2 a unos y a otros no.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>Si otros no logran comunicarse con usted, esto abre el puerto para todos: %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>Solo el administrador puede ver si un cortafuegos bloquea el puerto UDP %1.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>«sudo nimb-chatctl doctor» lo indica.</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>Es posible que este equipo tenga un cortafuegos, y no hay aquí ningún programa que muestre todas sus reglas.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>«sudo nft list ruleset» y «sudo iptables-legacy -S», de los paquetes nftables e iptables, las muestran.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>El cortafuegos %1 está activo; solo el administrador puede ver si deja entrar por el puerto UDP %2.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>Las tarjetas %1 y %2 están en la misma red; su dirección es la elegida.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>Las tarjetas %1 y %2 están en la misma red: los demás pueden verle con cualquiera de las dos direcciones.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>Desactive una de ellas o elija una como dirección propia en Herramientas, Opciones.</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>Su dirección es la de %1, una VPN u otra línea a una única máquina.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>Si los demás están en la red local, elija la tarjeta de esa red como dirección propia en Herramientas, Opciones.</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>Hay una VPN activa (%1); su dirección no está en ella.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>No hay ninguna VPN, y ninguna red tiene dos tarjetas de este equipo.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1 ha respondido en %2 ms.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 no ha respondido, pero el equipo con la dirección %2 está ahí, o lo estaba hace un momento.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>Puede que un cortafuegos bloquee allí UDP, que NIMB-Chat no se esté ejecutando o su usuario esté invisible, o que esa instancia aún no le conozca: utilicen ambos Usuarios, Buscar a todos en la red. Ejecute también allí el diagnóstico de red.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 no ha respondido, y ningún equipo de su red tiene la dirección %2.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>Está apagado, ha cambiado de dirección, está en otra red o el punto de acceso aísla sus equipos (aislamiento de clientes).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 no ha respondido. La dirección %2 está en otra red, detrás de un router o al otro extremo de un túnel.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>Lo que lleva hasta allí debe dejar pasar UDP en ambos sentidos; y allí puede fallar lo mismo que en una sola red: un cortafuegos, una instancia que no se ejecuta, un usuario invisible.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 no ha respondido. El camino a %2 es el de su dirección %3, pero en las opciones figura la tarjeta %4, a cuya dirección %5 quizá no se pueda llegar desde allí.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>Elija «automática» o la tarjeta de esa red como dirección propia en Herramientas, Opciones.</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>mensaje privado</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>mensaje de conferencia</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>ningún comando</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>comando desconocido</translation>
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
        <translation>[correcto]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[dudoso]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[INCORRECTO]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>entrada</translation>
    </message>
    <message>
        <source>out</source>
        <translation>salida</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>Descartado desde el inicio:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>Últimos datagramas:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>De direcciones que no son contactos: %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>Comandos incompletos: %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>Comandos que aquí nada atiende: %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>Para ventanas privadas no abiertas: %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>Para conferencias inexistentes o no disponibles de ese modo: %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>Direcciones que no pueden ser contactos: %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>Nuevos contactos con la lista llena: %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>Mensajes cuando ya había demasiados sin leer: %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>Invitaciones cuando ya había demasiadas en espera: %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>Avatares cuando ya se guardaban los de demasiados desconocidos: %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>Contactos que dejaron sitio en una lista llena: %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>Avatares y listas pedidos o enviados con demasiada frecuencia: %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>Datagramas que no se han podido enviar: %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>Datagramas perdidos antes de poder leerlos: %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>Exceso sobre lo que podía esperar, de los remitentes más activos: %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>de ellos, de %1: %2</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>Caras</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personas</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>Animales y naturaleza</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>Comida y bebida</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>Viajes y lugares</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Actividades</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Símbolos</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Banderas</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>cara riendo</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>cara llorando</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>cara sonriente</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>cara triste</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>cara neutra</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>cara sacando la lengua</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>cara guiñando un ojo</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>cara guiñando un ojo y sacando la lengua</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>cara con gran sonrisa</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>Elegir una carpeta con imágenes</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>Elegir la carpeta que se enviará</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>Elegir la carpeta donde guardar</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>Elegir los archivos que se enviarán</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurar página</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>%1 ha cambiado desde que se ofreció, por lo que la transferencia ha terminado.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 contiene demasiados archivos para enviarse de una vez.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>No se puede enviar %1: no se puede leer hasta el final.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>Elementos omitidos de %2 (%1): %3. No se siguen los enlaces ni se envía lo que no se puede leer.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>No se puede enviar %1: no es un archivo ni una carpeta que se pueda leer.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>En «%1» no hay ninguna imagen que mostrar.</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>La configuración está vacía.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>Hay una copia de la configuración, guardada el %1 a las %2. ¿Desea que NIMB-Chat continúe con esa copia? Lo que no se utilice se conservará con otro nombre.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>Hay una copia de la configuración, guardada el %1 a las %2; NIMB-Chat la ofrece cuando se inicia sin apodo.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>El historial estaba dañado, por lo que se ha iniciado uno nuevo con los %1 mensajes que aún se podían leer. El archivo antiguo es %2.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>lo ha escrito una versión más reciente de NIMB-Chat</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>El historial de %1 no se puede utilizar ahora (%2); lo guardado antes no ha cambiado.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>El historial de %1 se ha eliminado o sustituido mientras NIMB-Chat está en marcha: lo que se diga a partir de ahora va al que hay allí ahora.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>Ahora el historial de %1 solo se puede leer (%2): no se guardará nada más hasta que eso cambie.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>La carpeta %1 ya no existe.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>Se ha interrumpido la conexión con el remitente.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>No se puede establecer conexión con el remitente.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>El remitente ha interrumpido el envío o ha dado una respuesta no válida.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>El remitente ha dado una respuesta no válida.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>El remitente ya no lo ofrece.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>Es demasiado grande para mostrarse.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>Lo recibido no coincide con lo enviado. Se ha eliminado.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>No se puede cambiar el nombre de %1: %2.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>No hay espacio suficiente en %1.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>Ya no queda espacio en %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>No se puede seguir escribiendo %1: %2.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1 Se conserva lo ya recibido.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>No se puede enviar %1: no queda ningún puerto libre en este equipo.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 - %3 le ha invitado a una conferencia</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>No se ha seleccionado ningún usuario.</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 no estaba en línea: es probable que esto no haya llegado</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>En espera de que vuelva %1</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nuevo</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [fecha: %1 - hora: %2] listo »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 se llama ahora %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 se ha conectado ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 se ha desconectado ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 ha cambiado su estado a «%2» ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 le envía un zumbido ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 le ha enviado el contacto «%2» (%3) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- comando no admitido recibido (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- datos incomprensibles recibidos (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- %n datagrama incomprensible más recibido de %1 ---</numerusform>
            <numerusform>--- %n datagramas incomprensibles más recibidos de %1 ---</numerusform>
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
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurar página</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>Archivo reciente 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>Archivo reciente 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>Archivo reciente 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>Explorar la &amp;red...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>&amp;Agregar usuario sin conexión...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>&amp;Buscar a todos en la red</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Historial...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>&amp;Importar contactos...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>&amp;Exportar contactos...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>Crear &amp;nueva...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>Ver &amp;invitaciones...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>Mostrar la ventana de &amp;registro</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>&amp;Transferencias...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opciones...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>&amp;Buscar ayuda sobre...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>&amp;Sugerencia del día...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>&amp;Diagnóstico de red...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>A&amp;tajos de teclado...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>&amp;Usuarios</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>&amp;Conferencia</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>Chat &amp;privado</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Enviar &amp;zumbido</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>Invitar a la conferencia n.º &amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>Invitar a la conferencia n.º &amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>Invitar a la conferencia n.º &amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>Invitar a la conferencia n.º &amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>Invitar a la conferencia n.º &amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>Enviar &amp;contactos</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>E&amp;liminar usuario</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>&amp;Invitar al usuario</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>&amp;Silenciar</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>&amp;No guardar historial</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>Enviar &amp;archivo...</translation>
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
        <translation>%1, %2 sin leer</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>La última vez que se cerró NIMB-Chat: %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>El estado personalizado almacenado «%1» no empieza con la cifra de una imagen, por lo que se omite y se perderá definitivamente al cerrar NIMB-Chat.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- este escritorio no muestra iconos en la bandeja: NIMB-Chat se minimiza en lugar de ocultarse ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>Se interrumpirán los archivos que aún se están transfiriendo: %1. ¿Cerrar NIMB-Chat de todos modos?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>Se han perdido los mensajes que llegaron mientras se cerraba el programa: %1.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>Se han perdido los mensajes que quedaban sin leer al cerrar el programa: %1.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>Blanco perfecto</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>Bastante blanco</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>Verde muy brillante</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Verde claro</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>Casi verde</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>Bastante verde</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>Casi amarillo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>Más bien amarillo</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>Bastante rojo</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rojo oscuro</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>Casi negro</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>El mensaje no se ha enviado: el programa smbclient no está instalado. Instale el paquete smbclient (Debian, Ubuntu, Arch) o samba-client (Fedora) y vuelva a enviarlo.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>El mensaje no se ha enviado: no se ha podido escribir un archivo temporal (%1).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>El mensaje no se ha enviado: no se ha podido iniciar %1 (%2).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>El mensaje no se ha enviado: este sistema no tiene el comando «%1».</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>«%1» no es un nombre ni la dirección de un equipo o de una red, por lo que no se ha preguntado a nadie.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>No se ha encontrado ninguna dirección para «%1», por lo que no se ha preguntado a nadie.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 tiene demasiadas direcciones para preguntarles una a una: el intervalo máximo es /%2.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>%1 mensajes nuevos</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 mensaje nuevo</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 le invita a una conferencia</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 le envía un zumbido</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 en la conferencia n.º %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>mensajes nuevos</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>mensaje nuevo</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>automática</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (no conectada)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>El puerto debe ser un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>No se puede cambiar el inicio con el escritorio: %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>Sin red</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>Ya hay red: su dirección es %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>Su dirección es ahora %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>Este equipo ha estado suspendido: su dirección sigue siendo %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>Las redes han cambiado: su dirección sigue siendo %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>La tarjeta de red %1, cuya dirección figura como propia en las opciones, no está conectada; hasta que lo esté, su dirección es %2.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>Ninguna red asigna a este equipo una dirección IPv4, por lo que nadie puede comunicarse con usted. NIMB-Chat continuará en cuanto alguna lo haga.</translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation>En línea</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... agregar un estado personalizado...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>Texto de respuesta (Ocupado)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>Texto de respuesta (Ausente)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>Está usted invisible: si actualiza, sus contactos le verán</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>Preguntar a todos los contactos si están en línea</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>Solo se guardan %1 estados personalizados: «%2» dura hasta que se cierre NIMB-Chat.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 le está enviando un zumbido...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 está escribiendo un mensaje...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>Esta imagen tiene más de 50 megapíxeles. Elija una más pequeña.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Esta imagen está dañada.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>Esta imagen está dañada o es demasiado grande.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>No es una imagen que NIMB-Chat pueda leer.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>No se puede abrir «%1».</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>Puerto %1 ocupado</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>Sin puerto %1</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Esta máquina no tiene la dirección que se ha indicado a NIMB-Chat, por lo que nadie puede comunicarse con usted en el puerto %1. Corrija NIMBCHAT_ADDRESS o conecte la red: NIMB-Chat lo intenta de nuevo cada 5 segundos.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>El sistema no permite a NIMB-Chat utilizar el puerto %1, por lo que nadie puede comunicarse con usted. Elija un puerto superior a 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>No se puede utilizar la red en el puerto %1, por lo que nadie puede comunicarse con usted. NIMB-Chat lo intenta de nuevo cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Otro programa está utilizando el puerto %1, por lo que nadie puede comunicarse con usted. Cierre ese programa: NIMB-Chat lo intenta de nuevo cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>El puerto %1 ya está libre: pueden comunicarse con usted.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>Ya pueden volver a comunicarse con usted en el puerto %1.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 está en línea</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 está sin conexión</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 se ha desconectado</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 ha cambiado su estado a «%2»</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [fecha: %1 - hora: %2] listo »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 está sin conexión: se podrán enviar archivos cuando %1 vuelva.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 - NIMB-Chat - Chat privado</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>en su lugar hay algo que no es un archivo</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS es «%1», que no es una dirección IPv4; NIMB-Chat escucha en todas las interfaces en su lugar.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>El sistema concede %1 KiB para los datagramas en espera en lugar de %2 KiB: pueden perderse ráfagas repentinas.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Ningún programa de este equipo puede abrir %1.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- NIMB-Chat no pudo guardarlo todo la última vez que se cerró: se han recuperado los cambios ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- NIMB-Chat no pudo guardarlo todo la última vez que se cerró: se han recuperado los cambios, salvo %1 valores dañados ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>El NIMB-Chat en ejecución no conoce la orden «%1».</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>Ningún contacto se llama «%1» ni tiene esta dirección.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>Varios contactos se llaman «%1»: indique uno por su dirección (%2).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 no está en línea: no se ha enviado nada.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>No hay texto que enviar.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>«invisible» no admite texto.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>El estado «%1» no existe: solo online, busy, away e invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>Un mensaje admite %1 caracteres y este tiene más: no se ha enviado nada.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>El NIMB-Chat en ejecución aún pide un apodo.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>La orden es demasiado larga.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (%1 líneas más)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (%1 caracteres más)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 responde desde %2 y desde %3 y se muestra una sola vez</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>Ninguna red de este equipo lleva a %1, por lo que no se ha preguntado a nadie.</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>preguntando a %1 quién está en línea</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>detenido tras preguntar a %1 de %2</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>no se ha preguntado a nadie: está usted invisible y la pregunta revelaría a todos su presencia</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>no se puede preguntar a nadie: no hay ninguna red conectada</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>todos en %1</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>este equipo</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>ya no se pregunta a nadie: está usted invisible</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 es su propia dirección: nadie más recibe lo que se envía a ella</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>nadie ha respondido: no hay ninguna red conectada, por lo que solo se ha preguntado a este equipo</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>nadie ha respondido: quizá no haya nadie, lo impida un cortafuegos o la red aísle sus equipos; %1 lo averigua</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>Ayuda, Diagnóstico de red...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>han respondido %1: %2; nuevos: %3</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>El ajuste almacenado %1 no puede ser «%2»; se utiliza %3 en su lugar.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>no es ni una sección ni una clave con su valor</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>no hay ninguna clave «%1» en la sección «%2»</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1: otras líneas que no dicen nada: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>el archivo no está escrito en UTF-8</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>otro programa está utilizando el archivo</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>el archivo está dañado o contiene otra cosa</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>se ha agotado la memoria</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>el archivo se ha movido o reemplazado</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>el archivo o su carpeta es de solo lectura</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>La configuración no se ha guardado en %1 (%2), por lo que no se conservan los cambios posteriores al último guardado; lo almacenado antes no ha cambiado.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>Los cambios no se pueden guardar ahora en %1 (%2), por lo que se perderían si NIMB-Chat se cerrara antes de poder guardarlos.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>No se puede crear la carpeta de configuración %1 (%2), por lo que el programa se inicia con los valores predeterminados y no guarda ningún ajuste.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>No se puede crear el archivo de configuración %1 (%2), por lo que el programa se inicia con los valores predeterminados y no guarda ningún ajuste.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>No se puede leer la configuración de %1 (%2), por lo que el programa se inicia con los valores predeterminados y deja el archivo como está.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>No se puede modificar la configuración de %1 (%2), por lo que sus cambios se olvidarán al cerrar el programa.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>no se pudo leer al iniciar el programa y se perdería</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>La configuración estaba dañada o vacía en un inicio anterior de NIMB-Chat.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>Parte de la configuración de %1 está dañada (%2), por lo que puede diferir de lo guardado.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>La copia %1 no puede sustituir a la configuración (%2), por lo que el programa continúa sin ella.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>La configuración se ha guardado, pero su copia en %1 no se ha podido renovar (%2).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>Sugerencia del día - n.º %1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>No hay sugerencias que mostrar: el archivo TOTD.txt, que venía con el programa, falta o no se puede leer.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Sugerencia del día</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>Texto de respuesta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>Recuperar</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>No se puede leer la configuración de %1, por lo que se toma la de una instalación nueva: %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>Buscar un contacto (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>Buscar un contacto</translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation>en línea</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ocupado</translation>
    </message>
    <message>
        <source>away</source>
        <translation>ausente</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>aún desconocido</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>%1 por enviar</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>%1 sin leer</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Apodo</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Presencia</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>VentanaPrivada</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>NúmAvatar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>silenciado</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>Aún no hay nadie en su lista. Un clic pregunta a todos en su red.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>Buscar a todos en la red</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>Mostrar a todos</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>Aquí nadie se llama «%1»</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>Conversación</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>Se ha borrado la conversación.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>Emoticonos</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>Emoticonos y emojis (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>Longitud del mensaje</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>Lo que no ha cabido</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>Las conversaciones no se guardan.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>Enviar archivos</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>El resto está en el portapapeles.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>Enviar arc&amp;hivos...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>Enviar una car&amp;peta...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>Imagen %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>No se puede enviar la imagen: no hay espacio para ella.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>Se ha pegado una imagen (%1 × %2).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>Un mensaje admite %1 caracteres; los últimos %2 de lo que ha pegado no han cabido.</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> Guardarlas: %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>durante un año</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>para siempre</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>Enviarla</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>descartarla</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>Enviar archivos; para carpetas, use la flecha o la tecla Flecha abajo</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>Problemas anteriores con archivos: %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>Copiar el resto</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Responder</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>Aviso de NIMBChat</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(%1 más)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>Usados recientemente</translation>
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
        <translation>Buscar un emoji</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>Ningún emoji tiene ese nombre. Pruebe con otra palabra.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>Emoticonos</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>Esta versión de NIMB-Chat se ha compilado sin la parte que envía archivos.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>Se envían como máximo %1 archivos a la vez: ponga los demás en una carpeta y envíela.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>Se pueden ofrecer como máximo %1 archivos a la vez: detenga algunos en Herramientas &gt; Transferencias...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>No hay aquí nadie a quien se le pueda enviar un archivo.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>Los archivos se transmiten sin cifrar: quien pueda interceptar esta red podrá leerlos.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>ha vencido el plazo</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>no había nadie a quien comunicarlo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>en preparación</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1 % a %2</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>descargas: %1</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>aún sin descargar</translation>
    </message>
    <message>
        <source>over</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>terminado: %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>que se descargue</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>que se detenga</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>Se ofrecen archivos en la dirección %1, que este equipo ya no tiene: nadie puede descargarlos hasta que el equipo la recupere o usted los vuelva a enviar.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>ofrecido en la dirección %1, que este equipo ya no tiene</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>Otros archivos: %1.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Guardar todo...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>Guarda todo lo que se ofrece aquí en una sola carpeta</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todos</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>Mostrar aquí</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>Descarga la imagen y la muestra aquí sin guardarla</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Guardar...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>Ocultar esta fila; en Herramientas &gt; Transferencias... sigue disponible</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>Guardar %1</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Ningún programa de este equipo puede abrir %1.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>No es una imagen que NIMB-Chat pueda leer.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Imagen %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>Esta imagen es demasiado grande para mostrarse: tiene más de %1 megapíxeles. Guárdela.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>Busca en esta conversación; Ctrl+H busca en todo lo guardado</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>Anterior (Intro)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>Siguiente (Mayús+Intro)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Cerrar (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>Buscar en todo lo guardado</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>Abre la ventana del historial</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Buscando...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1, %2, en «%3»</translation>
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
        <translation>%1 minuto(s)</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazada</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>Rechazada automáticamente</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Cerrada</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>Invitación</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Llegada</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Antigüedad</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>Fuente de los registros</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familia</translation>
    </message>
    <message>
        <source> points</source>
        <translation> puntos</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrita</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Cursiva</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Ana: ¡Buenos días!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Familia:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (no instalada)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Ningún programa de este equipo puede abrir %1.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>Ir a la última línea</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n línea nueva</numerusform>
            <numerusform>%n líneas nuevas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>Algunos de los mensajes por enviar no se han podido leer y se han perdido.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>Ya hay %1 mensajes por enviar y no caben más.</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- no se envía un mensaje en espera para %1, que ya no es un contacto ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- se ha enviado el mensaje en espera para %1 ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- se han enviado los %1 mensajes en espera para %2 ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>Lo que escribió a %1 (%2) está pendiente de enviarse a %3. Ahora se encuentra allí %4 (%5).

¿Desea enviarlo a %4?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- lo que escribió a %1 en %2 no se ha enviado en siete días ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>Apodo</translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation>En línea</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>No se sabe si está en línea</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>Ya no es un contacto</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>en espera: %1</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>por enviar: %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>No se sabe si %1 está en línea: lo que escriba se enviará cuando %1 vuelva</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>No se sabe si %1 está en línea</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>No se sabe si %1 está en línea: lo que escriba podría no llegar</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 está sin conexión: lo que escriba se enviará cuando %1 vuelva</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 está sin conexión</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 está sin conexión: lo que escriba no llegará</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 ya no es un contacto: lo que llega de ahí no se muestra</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>No enviar más tarde</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>Enviar cuando vuelva %1</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>Lo que espera en esta conversación no se enviará, y lo que escriba ahora no esperará</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>Lo que ha escrito y no ha llegado se guardará y se volverá a enviar entonces, igual que lo que escriba ahora</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>&amp;Estado:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>Te&amp;xto:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>ofrecido</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>en cola</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1 % de %2, %3 por segundo</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1 % de %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>en pausa al %1 %</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>comprobando</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>guardado y comprobado</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>guardado; el remitente no ha dado datos para comprobarlo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 ya no ofrece este archivo.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>comprobando lo ya recibido: %1 %</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Página web (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copiar	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>Seleccionar &amp;todo	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Tamaño &amp;normal</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>&amp;Buscar...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>&amp;Guardar conversación como...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>Copiar dirección del &amp;enlace</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(las sugerencias tardan más)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(sin sugerencias)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Desactivada</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>Los archivos de este diccionario no se pueden leer o están dañados</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>Agregar al diccionario</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Ortografía</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>Apodo</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>archivos incompletos al cerrarse NIMB-Chat: %2; %1 permite reanudarlos</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>Herramientas, Transferencias...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>Acerca de NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>Imagen de NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>Un programa de mensajería sencillo sobre UDP/IP, pensado para pequeñas redes locales</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>Software libre con licencia MIT, sin garantía alguna. Nada de lo que se envía va cifrado: cualquiera en su red puede leerlo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>&amp;Información del sistema...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>La información del sistema no está disponible en este momento</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>Agregar usuario sin conexión</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>Introduzca los datos del usuario</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>&amp;Apodo</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>&amp;Equipo</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>&amp;Dirección IP</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>Invitaciones a conferencias - NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>Invitaciones</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>Nadie le ha invitado a una conferencia. Inicie una e invite a sus contactos desde el menú de cada uno.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>Iniciar una conferencia</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>&amp;Rechazar</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>Rechazar &amp;todas</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpiar</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>Quita las invitaciones que ya han terminado</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>Rechazar automáticamente tras</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>minuto(s)</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>Participantes</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>Actualizar lista</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>Expulsar usuario</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>Mostrar u ocultar participantes</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>Aún no hay nadie más aquí.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>Invitar a alguien...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>Invitar a alguien más...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>Ningún otro contacto está en línea</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>Avatares</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>Mostrar u ocultar avatares</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>dudoso</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>incorrecto</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat - Diagnóstico de red</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>&amp;Comprobar de nuevo</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Copiar &amp;informe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>¿&amp;Responde este contacto?</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>Contacto al que se pregunta</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>Aún no hay nadie en su lista</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>&amp;Preguntar</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>Últimos datagramas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>Aún no se ha enviado ni recibido nada.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>&amp;Mostrar lo que se ha escrito</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>No se ha descartado nada.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>Descartado:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat - Historial</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversaciones</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>Buscar en lo seleccionado</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>primer día</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>último día</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>from</source>
        <translation>desde</translation>
    </message>
    <message>
        <source>to</source>
        <translation>hasta</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>&amp;Borrar...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Se ha detenido la exportación.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>Todas las conversaciones</translation>
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
        <translation>Por enviar (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>Lo que ha escrito a contactos que no estaban</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>No enviado a %1</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>Por enviar a %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>Aún no se ha guardado nada. En las opciones se elige si se guardan las conversaciones.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>Nada coincide con lo que busca.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Página web (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>Historial de NIMB-Chat</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>Mensajes exportados: %1.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>Mensajes exportados hasta ahora: %1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>El &amp;mensaje seleccionado</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>¿Borrar definitivamente el mensaje seleccionado?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>La &amp;conversación seleccionada</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>¿Borrar definitivamente todo lo guardado de «%1»?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>&amp;Los días seleccionados</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>¿Borrar definitivamente todo lo guardado de los días seleccionados?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todo</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>¿Borrar definitivamente todo lo guardado de todas las conversaciones?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>¿Borrar el mensaje seleccionado? No se enviará.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>Borrando...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>No se ha borrado nada: no se puede escribir en el historial.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>¿Borrar definitivamente todo lo guardado de todas las conversaciones? Lo que está por enviar se queda y se enviará.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat - Invitar por net send</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>Texto e&amp;stándar</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>Texto &amp;propio</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>Texto propio</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>Enviar al equipo %2, para %1</translation>
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
        <translation>¡Le damos la bienvenida a NIMB-Chat!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>Elija un apodo para esta sesión</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>&amp;Apodo:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>nimb::frmMain</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>Registro borrado.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>Datos de los contactos</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>Apodo y estado</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>Todos los datos</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>Actualiza&amp;r</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>Sin zumbidos</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>Contacto seleccionado</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>Estado propio</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>Autorrespuesta</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>Texto de respuesta...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>Direcciones consultadas</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>No pregunta a nadie más</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat - Exploración de red</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>Buscar nuevos usuarios de NIMB-Chat en la red</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>&amp;Nombre del equipo o dirección IP:</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>Todos en una red de este equipo</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>Todos en...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>Nota: puede utilizar la dirección IP de difusión para explorar toda una red (por ejemplo, si su dirección IP es 192.168.1.1 y su máscara de subred es 255.255.255.0, la dirección IP de difusión es 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Explorar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>Este equipo no está ahora en ninguna red.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>&amp;Diagnóstico de red...</translation>
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
        <translation>Aviso de NIMBChat</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>ocultar</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Lo que ha ocurrido</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>No mostrar los cambios de &amp;estado en la ventana privada</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>Sin sonido al enviar un &amp;zumbido</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>Sin sonido al &amp;recibir un zumbido</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>Mostrar la ventana de c&amp;hat privado en primer plano</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>Abrir la ventana de chat privado &amp;minimizada (predeterminado)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>Cerrar una ventana privada solo la &amp;oculta y conserva sus mensajes</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>Desactivar la ventana de &amp;notificaciones</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>Si se marca, no aparece nada: ni quién llega o se va ni lo que se recibe</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>LiveType &amp;desactivado de forma predeterminada</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>El botón &amp;Cerrar oculta la ventana principal (el icono de la bandeja la recupera)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>Avisar de mensajes e in&amp;vitaciones</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>Cuando su ventana no está activa y usted no está en estado «Ocupado»; nunca se avisa de un contacto silenciado</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>Mostrar el &amp;texto de los mensajes</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>Sonido al recibir un mensa&amp;je</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>&amp;Sonido cuando alguien se conecta</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>Sonido con cada &amp;invitación</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat - Opciones</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Usted</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Apodo:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>Sus propios estados</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>Estados propios:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>Sonidos y avisos</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>Lo que llega mientras atiende a otra cosa</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>Guardar conversaciones</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>durante un año</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>para siempre</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>Guardar conversaciones:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>Ventanas privadas</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>Ventana principal y red</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>P&amp;uerto UDP:</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>Dirección propia</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>Dirección &amp;propia:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>el del escritorio</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Los cambios se aplicarán en el próximo inicio.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>Fuente de los registros</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>&amp;Fuente...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>La usarán las ventanas nuevas; las abiertas conservan la suya.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>Su avatar</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>Sin &amp;avatar</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>Una ima&amp;gen:</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>Imágenes que cam&amp;bian:</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>La imagen</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>Origen de las imágenes</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>de la cámara</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>de una carpeta</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>E&amp;legir...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>También se puede soltar o pegar aquí una imagen. Las imágenes que cambian terminan al cerrar NIMB-Chat; la imagen fija se conserva.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>preguntar</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>La determina la variable de entorno NIMBCHAT_ADDRESS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1, %2 puntos</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>la fuente del escritorio: %1, %2 puntos</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>Imágenes (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Iniciar con el escritorio</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>En cada inicio de sesión, minimizado, con su apodo</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat - Chat privado</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>Lo que escribe el contacto</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>¡Zumbido!</translation>
    </message>
    <message>
        <source>(CTRL+G)</source>
        <translation>(CTRL+G)</translation>
    </message>
    <message>
        <source>LiveType!</source>
        <translation>¡LiveType!</translation>
    </message>
    <message>
        <source>The other one sees what you type before you send it</source>
        <translation>El contacto ve lo que usted escribe antes de enviarlo</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Ánimo</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>Avatar</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>Avatar del contacto</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>Su ánimo (sin especificar)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>Ánimo del contacto (sin especificar)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Usted</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>Dirección del contacto</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>Su ánimo (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>Ánimo del contacto (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat - Enviar contactos a «%1»</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>Agregar los contactos seleccionados</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>Agregar todos los contactos</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>Quitar los contactos seleccionados</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>Quitar todos los contactos</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>Seleccione los contactos que desea enviar</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>Contactos que se pueden enviar</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>No hay más contactos que enviar</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>Contactos elegidos para enviar</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>Se enviarán los contactos que ponga aquí</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>Abrir el manual por la página de la ventana</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>Buscar un contacto; también al escribir en la lista</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>Lo guardado de las conversaciones</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>Abrir la ventana privada del contacto seleccionado</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>Eliminar los contactos seleccionados, previa confirmación</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>Salir de la búsqueda de contactos</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Enviar el mensaje</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>Empezar otra línea</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>En un cuadro vacío: recuperar el último mensaje</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>Elegir un emoji</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>Enviar zumbido (ventanas privadas)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>Salir de la búsqueda, los emoticonos o los emojis</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Buscar en el registro</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Copiar lo seleccionado</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Letra más grande</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Letra más pequeña</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>Letra de tamaño normal</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>Todas las ventanas</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Ventana principal</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversaciones</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat - Atajos de teclado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>¿Sabía que...?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Sugerencia</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat es software libre con licencia MIT. Puede compartirlo con todos en su red.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>&amp;Mostrar sugerencias al inicio</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat - Transferencias</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>Lo que usted ofrece, mientras NIMB-Chat esté abierto</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>Lo que usted ofrece</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>No se ofrece nada. Suelte archivos o carpetas en una conversación, o pulse el clip que hay en ella.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>Hasta cuándo se ofrece</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>Durante 24 horas</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>Hasta que se descargue una vez</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Hasta que se detenga</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>Lo que otros le ofrecen</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>Nadie le ha ofrecido un archivo desde que se inició NIMB-Chat.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>&amp;Guardar...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausar</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reanudar</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Abrir carpeta</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Ningún programa de este equipo puede abrir %1.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>Guardar &amp;todo...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>Guarda en una sola carpeta todo lo que se ofrece y aún no se ha descargado</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>Guardar &amp;todo (%1)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>De&amp;scartar...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>Renuncia al archivo y elimina lo recibido de él</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>¿Descartar «%1»? Lo recibido, %2, se eliminará del disco.</translation>
    </message>
</context>
</TS>
