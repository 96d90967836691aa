<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>Preencha todos os campos</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>Não é possível adicionar o seu próprio usuário...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>Este endereço IP já é usado por outro usuário</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>Este não é o endereço de um único computador: o que é enviado para lá chega a todos na rede.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>Este endereço não pode ser guardado: ele marca o fim da lista armazenada.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>Este não é um endereço como 192.168.1.20: nada pode ser enviado para lá.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>Não há nenhuma câmera.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>A câmera parou: %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>A câmera foi desconectada.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (você)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>Conferência nº %1 (hospedada aqui) - NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>Conferência nº %1 (hospedada por “%2”) - NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [hoje: %1 - agora: %2] Conferência nº %3 pronta »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>Conferência nº %1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>Conferência nº %1 de %2</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- Esta conferência foi encerrada.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- Você removeu %1 da conferência.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>Fechar esta janela encerrará a conferência. Continuar?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>Sair da conferência?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 entrou na conferência</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 saiu da conferência.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 recusou o convite para a conferência</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>Não há mais janelas de conferência disponíveis!</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>O NIMB-Chat não está em execução com este perfil.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>O NIMB-Chat em execução não responde.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>O comando é longo demais.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>Conversa &amp;privada</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Enviar &amp;toque</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Remover usuário</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>&amp;Enviar contatos</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>Con&amp;vidar usuário</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>Conversa privada com “%1”</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>Enviar toque para “%1”</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>Remover %1 usuários da lista</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>Remover “%1” da lista</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>&amp;Enviar contatos para “%1”</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>Enviar mensagem por &amp;net send para “%1”</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>Con&amp;vidar o usuário “%1”</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (mensagens não lidas: %2)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1 em %2 (%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 está offline: o que você escrever não chegará</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>verificando se %1 está online: nenhuma janela será aberta antes da resposta</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>não se sabe se %1 está online: “Atualizar” faz a consulta e mostra você aos seus contatos</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>não se sabe se %1 está online: “Atualizar” faz a consulta</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>Tem certeza de que deseja remover o usuário “%1” da estação de trabalho “%2” (%3)?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>Tem certeza de que deseja remover estes %1 usuários?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (mais %1)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>Confirmar remoção de usuário</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>%1 contatos selecionados</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>“%1” não é o endereço de um único computador</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>há um nome vazio</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 já apareceu antes</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>não está codificado em UTF-8</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>o correto é: %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>as aspas não estão corretas</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>não contém três campos</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>o que é enviado para %1 chega a todos na rede</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 sempre se refere ao próprio computador</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Linha %1 de %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>; linha %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; mais %n</numerusform>
            <numerusform>; mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1. Nenhum contato foi importado deste arquivo.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>contatos importados de %1: %2; já existentes: %3</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>; ignorado: o seu próprio endereço</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>todos os novos contatos</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>contatos enviados para %1: %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>Última mensagem: %1 às %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>não é possível gravar no registro</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>Contatos (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>é grande demais para uma lista de contatos</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>contatos em %1: %2</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>contatos em %1: %2; omitidos, pois ninguém mais poderia alcançá-los: %3</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>Um datagrama está a caminho do seu próprio endereço.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>Procurando um firewall.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 não é mais um contato.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 não é um endereço como 192.168.1.20: nada pode ser enviado para lá.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>Remova o contato e adicione-o com o endereço correto.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>Nenhuma consulta foi feita a %1: você está invisível, e ela mostraria que você está aqui.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>Primeiro, escolha outro estado.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>Nenhuma rede deste computador leva a %1.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>Conecte-se à rede em que o contato está.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>Nenhuma consulta foi feita a %1, pois não há nada escutando para receber a resposta.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>Resolva primeiro o problema da porta.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>Aguardando resposta de %1.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>O NIMB-Chat foi configurado para não sair deste computador: ele usa a rede de loopback.</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>Nenhuma rede com endereço IPv4 está conectada.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>Conecte o cabo ou entre na rede sem fio que os outros usam.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Conectado como %1.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>Seu endereço é %1, e nenhuma placa de rede deste computador tem esse endereço.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>Corrija NIMBCHAT_ADDRESS ou conecte-se a essa rede.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>Conecte-se a uma rede ou escolha outro endereço em Ferramentas &gt; Opções.</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>Seu endereço é %1, da placa %2, na qual ninguém pode ser encontrado: ela leva a uma única máquina ou ao que é executado dentro desta.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>Se os outros estiverem em outra rede, corrija NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>Se os outros estiverem em outra rede, escolha a placa dessa rede como seu endereço em Ferramentas &gt; Opções.</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>Seu endereço é %1, que só pode ser alcançado por programas deste computador.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>Inicie o NIMB-Chat sem NIMBCHAT_ADDRESS para conversar com outros computadores.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>A placa de rede %1, escolhida nas opções para o seu endereço, não está conectada; seu endereço é %2, da placa %3.</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>Conecte essa placa ou escolha outro endereço em Ferramentas &gt; Opções.</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>Seu endereço é %1, da placa %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>O NIMB-Chat está escutando na porta UDP %1.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>O sistema não permite que o NIMB-Chat use a porta %1.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>Escolha uma porta acima de 1023 em Ferramentas &gt; Opções, a mesma para todos.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>Nada está escutando: esta máquina não tem o seu endereço.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Conecte-se à rede que tem esse endereço; o NIMB-Chat tenta novamente a cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>A porta %1 está sendo usada pelo programa %2 (processo %3).</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>Feche esse programa; o NIMB-Chat tenta novamente a cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>A porta %1 está sendo usada por outro programa.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>“sudo ss -ulpn sport = :%1” mostra qual é.</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>O NIMB-Chat não está escutando na porta %1.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>O NIMB-Chat tenta novamente a cada 5 segundos; se isso não resolver, reinicie-o.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>A porta UDP %1 está livre para o NIMB-Chat, que não está em execução.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>O NIMB-Chat está em execução (processo %1) e escuta na porta UDP %2.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>O sistema não reserva espaço para datagramas em espera.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>O sistema guarda apenas %1 KiB de datagramas em espera: quando muitos respondem ao mesmo tempo, alguns se perdem.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>“sudo sysctl -w net.core.rmem_max=4194304” permite guardar mais.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>O sistema guarda %1 KiB de datagramas em espera.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>Um datagrama enviado ao seu próprio endereço, %1, chegou de volta.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>Um datagrama enviado ao seu próprio endereço, %1, não chegou de volta em um segundo.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>Um firewall neste computador bloqueia até os próprios datagramas, ou o endereço não é deste computador.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>Nenhum datagrama foi enviado ao seu próprio endereço, pois não há nada escutando para recebê-lo.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>Nenhum datagrama foi enviado ao seu próprio endereço, pois a cópia em execução o receberia: o diagnóstico de rede dela faz esse teste.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>É possível consultar todos neste computador.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>Não há nenhuma rede em que seja possível consultar todos.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>Adicione os outros pelo endereço: Usuários &gt; Adicionar usuário offline.</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>Consulta a todos enviada: %1.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>O sistema se recusa a enviar a todos: %1.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>Um firewall neste computador impede a saída; permita a saída de UDP para esse endereço.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>Nenhum firewall detectado neste computador.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>O firewall %1 está ativado e permite a entrada na porta UDP %2.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>O firewall %1 está ativado e bloqueia a entrada na porta UDP %2: ninguém consegue alcançar você.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>Isto abre a porta: %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>O firewall %1 está ativado e, ao que parece, permite a entrada na porta UDP %2 para alguns e não para outros.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>Se outros não conseguirem alcançar você, isto abre a porta para todos: %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>Só o administrador pode ver se um firewall bloqueia a porta UDP %1.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>“sudo nimb-chatctl doctor” mostra isso.</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>Este computador pode ter um firewall, e não há aqui nenhum programa que mostre todas as regras dele.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>“sudo nft list ruleset” e “sudo iptables-legacy -S”, dos pacotes nftables e iptables, mostram essas regras.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>O firewall %1 está ativado; só o administrador pode ver se ele permite a entrada na porta UDP %2.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>As placas %1 e %2 estão na mesma rede; seu endereço é o que foi escolhido.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>As placas %1 e %2 estão na mesma rede: os outros podem ver você em qualquer um dos dois endereços.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>Desative uma delas ou escolha uma para o seu endereço em Ferramentas &gt; Opções.</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>Seu endereço é o de %1, uma VPN ou outra conexão com uma única máquina.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>Se os outros estiverem na rede local, escolha a placa dela para o seu endereço em Ferramentas &gt; Opções.</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>Há uma VPN ativa (%1); seu endereço não pertence a ela.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>Não há nenhuma VPN, e nenhuma rede tem duas placas deste computador.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1 respondeu após %2 ms.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 não respondeu, mas o computador em %2 está lá, ou estava há pouco.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>Um firewall lá pode estar bloqueando UDP, o NIMB-Chat pode não estar em execução lá, o usuário pode estar invisível ou aquela cópia ainda não conhece você: usem, nos dois lados, Usuários &gt; Procurar todos na rede. Execute o diagnóstico de rede lá também.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 não respondeu, e nenhum computador da sua rede tem o endereço %2.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>O computador está desligado, já tem outro endereço, está em outra rede ou o ponto de acesso mantém as máquinas separadas (isolamento de clientes).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 não respondeu. O endereço %2 está em outra rede, atrás de um roteador ou na outra ponta de um túnel.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>O caminho até lá precisa permitir UDP nas duas direções; e o que pode dar errado em uma rede também pode dar errado lá: um firewall, uma cópia que não está em execução, um usuário invisível.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 não respondeu. O caminho até %2 passa pelo seu endereço %3, mas as opções indicam a placa %4, cujo endereço %5 talvez não possa ser alcançado de lá.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>Escolha “automático” ou a placa dessa rede para o seu endereço em Ferramentas &gt; Opções.</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>mensagem privada</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>mensagem de conferência</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>nenhum comando</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>comando desconhecido</translation>
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
        <translation>[ok]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[incerto]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[ERRO]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>entrada</translation>
    </message>
    <message>
        <source>out</source>
        <translation>saída</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>Descartados desde o início:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>Os últimos datagramas:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>De endereços que não são contatos: %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>Comandos incompletos: %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>Comandos que nada aqui aceita: %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>Para janelas privadas que não estão abertas: %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>Para conferências inexistentes ou inacessíveis dessa forma: %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>Endereços que não podem se tornar contatos: %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>Novos contatos com a lista cheia: %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>Mensagens recebidas com muitas outras ainda não lidas: %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>Convites recebidos com muitos outros pendentes: %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>Avatares recebidos com avatares demais de desconhecidos guardados: %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>Contatos que deram lugar a outros na lista cheia: %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>Avatares e listas solicitados ou enviados com frequência excessiva: %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>Datagramas que não puderam ser enviados: %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>Datagramas perdidos antes de serem lidos: %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>Acima do limite de espera, dos remetentes mais insistentes: %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>destes, de %1: %2</translation>
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
        <translation>Pessoas</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>Animais e natureza</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>Comidas e bebidas</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>Viagens e lugares</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Atividades</translation>
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
        <translation>Bandeiras</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>rosto rindo</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>rosto chorando</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>rosto sorrindo</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>rosto triste</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>rosto neutro</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>rosto com língua de fora</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>rosto piscando</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>rosto piscando com língua de fora</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>rosto com sorriso largo</translation>
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
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>Escolher uma pasta com imagens</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>Escolher uma pasta para enviar</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>Escolher a pasta de destino</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>Escolher arquivos para enviar</translation>
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
        <translation>%1 foi alterado depois de ser oferecido; por isso, a transferência foi encerrada.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Não é possível ler %1.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 contém arquivos demais para um único envio.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>Não é possível enviar %1: a leitura não pôde ser concluída.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>Itens omitidos de %2: %1 (%3). Links não são seguidos, e o que não pode ser lido não é enviado.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>Não é possível enviar %1: não é um arquivo ou pasta que possa ser lido.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>Não há nenhuma imagem para mostrar em “%1”.</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>As configurações estão vazias.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>Há uma cópia das configurações, salva em %1 às %2. Deseja que o NIMB-Chat continue com essa cópia? O que não for usado será guardado com outro nome.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>Há uma cópia das configurações, salva em %1 às %2; o NIMB-Chat a oferece quando é iniciado sem um apelido.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>O histórico estava danificado, e um novo foi iniciado; as %1 mensagens que ainda puderam ser lidas foram transferidas para ele. O arquivo antigo é %2.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>ele foi gravado por uma versão mais recente do NIMB-Chat</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>O histórico em %1 não pode ser usado agora (%2); o que foi guardado antes permanece inalterado.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>O histórico em %1 foi removido ou substituído enquanto o NIMB-Chat está em execução: o que for dito de agora em diante vai para o que está lá agora.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>O histórico em %1 só pode ser lido agora (%2): nada mais será guardado até que isso mude.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>A pasta %1 não existe mais.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>A conexão com o remetente foi interrompida.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>Não é possível alcançar o remetente.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>O remetente interrompeu a transferência ou deu uma resposta inválida.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>O remetente deu uma resposta inválida.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>O remetente não oferece mais este arquivo.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>É grande demais para ser mostrado.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>O que chegou não é o que foi enviado e, por isso, foi removido.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>Não é possível renomear %1: %2.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>Não há espaço suficiente em %1.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>Não há mais espaço em %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>Não é possível continuar gravando %1: %2.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1 O que já chegou foi mantido.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>Não é possível enviar %1: nenhuma porta deste computador está livre para isso.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 - %3 convidou você para uma conferência</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>Nenhum usuário selecionado!</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 não estava online: esta mensagem provavelmente não chegou</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>Aguardando até %1 voltar</translation>
    </message>
    <message>
        <source>new</source>
        <translation>novas mensagens</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [hoje: %1 - agora: %2] Pronto »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 agora se chama %2 ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 ficou online ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 ficou offline ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 mudou de estado para “%2”  ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 enviou um toque para você ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 enviou a você o contato “%2” (%3) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- comando não suportado recebido (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- dados inválidos recebidos  (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- mais %n comando não reconhecido recebido de %1 ---</numerusform>
            <numerusform>--- mais %n comandos não reconhecidos recebidos de %1 ---</numerusform>
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
        <translation>Novo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Salvar tudo</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurar página</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Visualizar impressão</translation>
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
        <translation>Arquivo recente 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>Arquivo recente 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>Arquivo recente 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>&amp;Varredura de rede...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>&amp;Adicionar usuário offline...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>&amp;Procurar todos na rede</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Histórico...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>&amp;Importar contatos...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>&amp;Exportar contatos...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>Criar &amp;nova...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>Ver &amp;convites...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>Mostrar janela de &amp;registro</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>&amp;Transferências...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opções...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Conteúdo</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>&amp;Pesquisar ajuda sobre...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>&amp;Dica do dia...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>Diagnóstico de &amp;rede...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>&amp;Atalhos de teclado...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>&amp;Usuários</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>&amp;Conferência</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>Conversa &amp;privada</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>Enviar &amp;toque</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>Convidar para a conferência nº &amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>Convidar para a conferência nº &amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>Convidar para a conferência nº &amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>Convidar para a conferência nº &amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>Convidar para a conferência nº &amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>&amp;Enviar contatos</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>&amp;Remover usuário</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>Con&amp;vidar usuário</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>&amp;Silenciar</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>Não &amp;guardar histórico</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>Enviar &amp;arquivo...</translation>
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
        <translation>%1, %2 não lidas</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>Na última vez em que o NIMB-Chat foi encerrado: %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>O estado personalizado “%1”, armazenado, não começa com o dígito da imagem; ele foi ignorado e será perdido definitivamente quando o NIMB-Chat for encerrado.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- esta área de trabalho não mostra ícones na bandeja: o NIMB-Chat é minimizado em vez de oculto ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>Os arquivos ainda em transferência serão interrompidos: %1. Encerrar o NIMB-Chat mesmo assim?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>As mensagens que chegaram durante o encerramento do programa foram perdidas: %1.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>As mensagens não lidas quando o programa foi encerrado foram perdidas: %1.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>Branco perfeito</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>Bem branco</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>Verde muito claro</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Verde-claro</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>Quase verde</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>Meio verde</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>Quase amarelo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>Mais para amarelo</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>Meio vermelho</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Vermelho-escuro</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>Quase preto</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Preto</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>A mensagem não foi enviada: o programa smbclient não está instalado. Instale o pacote smbclient (Debian, Ubuntu, Arch) ou samba-client (Fedora) e envie novamente.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>A mensagem não foi enviada: não foi possível gravar um arquivo temporário (%1).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>A mensagem não foi enviada: não foi possível iniciar %1 (%2).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>A mensagem não foi enviada: este sistema não tem o comando “%1”.</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>“%1” não é um nome nem o endereço de um computador ou de uma rede; por isso, ninguém foi consultado.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>Nenhum endereço foi encontrado para “%1”; por isso, ninguém foi consultado.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 tem endereços demais para serem consultados um a um: a maior faixa é /%2.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>%1 novas mensagens</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>1 nova mensagem</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 convida você para uma conferência</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 enviou um toque para você</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 na conferência nº %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>novas mensagens</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>nova mensagem</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>automático</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (não conectada)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A porta deve ser um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>Não é possível alterar a inicialização com a área de trabalho: %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>Sem rede</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>Agora há uma rede: seu endereço é %1</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>Seu endereço agora é %1</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>Este computador estava suspenso: seu endereço ainda é %1</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>As redes mudaram: seu endereço ainda é %1</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>A placa de rede %1, escolhida nas opções para o seu endereço, não está conectada; até que esteja, seu endereço é %2.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>Nenhuma rede fornece um endereço IPv4 a este computador; por isso, ninguém consegue alcançar você. O NIMB-Chat continua assim que houver um.</translation>
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
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisível</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... adicionar estado personalizado...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>Texto da resposta automática (quando ocupado)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>Texto da resposta automática (quando ausente)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>Você está invisível: atualizar mostra você aos seus contatos</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>Consulta todos os contatos para saber se estão online</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>Apenas %1 estados personalizados são mantidos: “%2” dura até o NIMB-Chat ser encerrado.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 enviou um toque para você...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 está digitando uma mensagem...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>Esta imagem tem mais de 50 megapixels. Escolha uma menor.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Esta imagem está danificada.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>Esta imagem está danificada ou é grande demais.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Esta não é uma imagem que o NIMB-Chat consiga ler.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>Não é possível abrir “%1”.</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>Porta %1 ocupada</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>Sem porta %1</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>Esta máquina não tem o endereço que o NIMB-Chat foi instruído a usar; por isso, ninguém consegue alcançar você na porta %1. Corrija NIMBCHAT_ADDRESS ou conecte-se à rede: o NIMB-Chat tenta novamente a cada 5 segundos.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>O sistema não permite que o NIMB-Chat use a porta %1; por isso, ninguém consegue alcançar você. Escolha uma porta acima de 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>A rede não pode ser usada na porta %1; por isso, ninguém consegue alcançar você. O NIMB-Chat tenta novamente a cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>A porta %1 está sendo usada por outro programa; por isso, ninguém consegue alcançar você. Feche esse programa: o NIMB-Chat tenta novamente a cada 5 segundos.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>A porta %1 agora está livre: os outros podem alcançar você.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>Os outros podem alcançar você novamente na porta %1.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 está online</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 está offline</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 ficou offline</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 mudou de estado para “%2”</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [hoje: %1 - agora: %2] Pronto »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 está offline: será possível enviar arquivos quando %1 voltar.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 - NIMB-Chat - Janela de conversa privada</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>há em seu lugar algo que não é um arquivo</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS é “%1”, que não é um endereço IPv4; por isso, o NIMB-Chat escuta em todas as interfaces.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>O sistema concede %1 KiB para datagramas em espera em vez de %2 KiB: em rajadas repentinas, alguns podem se perder.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nenhum programa neste computador abre %1.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- o NIMB-Chat não conseguiu salvar tudo ao ser encerrado pela última vez: as alterações foram recuperadas ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- o NIMB-Chat não conseguiu salvar tudo ao ser encerrado pela última vez: as alterações foram recuperadas, exceto %1 valores danificados ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>O NIMB-Chat em execução não conhece o comando “%1”.</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>Nenhum contato se chama “%1” ou tem este endereço.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>Vários contatos se chamam “%1”: indique um pelo endereço (%2).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 não está on-line: nada foi enviado.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>Não há texto para enviar.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Não é possível ler %1.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>“invisible” não aceita texto.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>O estado “%1” não existe: há online, busy, away e invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>Uma mensagem comporta %1 caracteres e esta tem mais: nada foi enviado.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>O NIMB-Chat em execução ainda pede um apelido.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>O comando é longo demais.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (mais %1 linhas)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (mais %1 caracteres)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 responde de %2 e de %3; aparece uma única vez</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>Nenhuma rede deste computador leva a %1; por isso, ninguém foi consultado.</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>perguntando a %1 quem está online</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>interrompido após consultar %1 de %2</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>ninguém foi consultado: você está invisível, e a consulta mostraria a todos que você está aí</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>ninguém pode ser consultado: nenhuma rede está conectada</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>todos em %1</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>este computador</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>ninguém mais será consultado: você está invisível</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 é o seu próprio endereço: ninguém mais recebe o que é enviado para lá</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>ninguém respondeu: nenhuma rede está conectada; por isso, só este computador foi consultado</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>ninguém respondeu: pode não haver ninguém, um firewall pode estar bloqueando ou a rede pode manter as máquinas separadas; %1 verifica a causa</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>Ajuda &gt; Diagnóstico de rede...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>responderam %1: %2; novos: %3</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>A configuração armazenada %1 não pode ser “%2”; %3 será usado no lugar.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>não é uma seção nem uma chave com seu valor</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>não há chave “%1” na seção “%2”</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1: outras linhas que não dizem nada: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, linha %2: %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>o arquivo é grande demais</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>o arquivo não está escrito em UTF-8</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>o disco está cheio</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>outro programa está usando o arquivo</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>o arquivo está danificado ou contém outra coisa</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>a memória se esgotou</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>o arquivo foi movido ou substituído</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>o arquivo ou sua pasta é somente leitura</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>As configurações não foram salvas em %1 (%2); por isso, o que mudou desde a última gravação não foi mantido; o que estava armazenado antes permanece inalterado.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>O que mudou não pode ser guardado em %1 agora (%2) e se perderá se o NIMB-Chat for encerrado antes de conseguir salvar.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Não é possível criar a pasta de configurações %1 (%2); por isso, o programa inicia com os valores padrão e não guarda configurações.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>Não é possível criar o arquivo de configurações %1 (%2); por isso, o programa inicia com os valores padrão e não guarda configurações.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>Não é possível ler as configurações em %1 (%2); por isso, o programa inicia com os valores padrão e deixa o arquivo como está.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>Não é possível alterar as configurações em %1 (%2); por isso, suas alterações serão esquecidas quando o programa for encerrado.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>elas não puderam ser lidas quando o programa foi iniciado e se perderiam</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>As configurações estavam danificadas ou vazias na inicialização anterior do NIMB-Chat.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>Algumas das configurações em %1 estão danificadas (%2); por isso, podem diferir do que foi salvo.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>A cópia %1 não pode substituir as configurações (%2); por isso, o programa continua sem elas.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>As configurações foram salvas, mas a cópia delas em %1 não pôde ser renovada (%2).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>Dica do dia - Dica nº %1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>Não há dicas para mostrar: o arquivo TOTD.txt, que acompanha o programa, está ausente ou não pode ser lido.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Dica do dia</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>Texto da resposta automática</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>Desfazer</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>Não é possível ler as configurações em %1; por isso, são usadas as de uma instalação nova: %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>Localizar contato (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>Localizar contato</translation>
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
        <translation>ocupado</translation>
    </message>
    <message>
        <source>away</source>
        <translation>ausente</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>ainda desconhecido</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>%1 a enviar</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>%1 não lidas</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Apelido</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>Estação de trabalho</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>Janela privada</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>Nº do avatar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
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
        <translation>Ainda não há ninguém na sua lista. Com um clique, você consulta todos na sua rede.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>Procurar todos na rede</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>Mostrar todos</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>Ninguém aqui se chama “%1”</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>Conversa</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>A conversa foi limpa.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>Emoticons</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>Emoticons e emojis (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>Tamanho da mensagem</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>O que não coube</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>As conversas não são guardadas.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>Enviar arquivos</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>O restante está na área de transferência.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>Enviar ar&amp;quivos...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>Enviar &amp;pasta...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>Imagem %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>A imagem não pode ser enviada, pois não há espaço para ela.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>Uma imagem foi colada (%1 × %2).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>Uma mensagem comporta %1 caracteres; os últimos %2 do que você colou não couberam.</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> Guardar: %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>por um ano</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>para sempre</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>não enviar</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>Enviar arquivos; para pastas, use a seta ou a tecla Seta para baixo</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>Problemas anteriores com arquivos: %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>Copiar o restante</translation>
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
        <translation>Aviso do NIMBChat!</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(mais %1)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>Usados recentemente</translation>
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
        <translation>Localizar emoji</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>Nenhum emoji tem esse nome. Tente outra palavra.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Não encontrado</translation>
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
        <translation>Esta cópia do NIMB-Chat foi compilada sem a parte que envia arquivos.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>No máximo %1 arquivos são enviados de uma vez: coloque-os em uma pasta e envie a pasta.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>No máximo %1 arquivos podem ser oferecidos ao mesmo tempo: pare alguns em Ferramentas &gt; Transferências...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>Não há ninguém aqui a quem enviar um arquivo.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>Os arquivos não são criptografados no caminho: quem puder escutar esta rede poderá lê-los.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>o prazo expirou</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>não havia ninguém para avisar</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>interrompido</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>em preparação</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1% para %2</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>downloads: %1</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>ainda não baixado</translation>
    </message>
    <message>
        <source>over</source>
        <translation>encerrado</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>encerrado: %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>ser baixado</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>ser interrompido</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>Há arquivos oferecidos no endereço %1, que este computador não tem mais: ninguém pode baixá-los até que ele volte a ter esse endereço ou você os envie novamente.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>oferecido no endereço %1, que este computador não tem mais</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>Outros arquivos: %1.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Salvar tudo...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>Salva em uma pasta tudo o que é oferecido aqui</translation>
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
        <translation>Mostrar aqui</translation>
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
        <translation>Baixa a imagem e a mostra aqui, sem salvá-la</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Salvar...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>Oculta esta linha, mas Ferramentas &gt; Transferências... ainda a mostra</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
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
        <translation>Salvar %1</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nenhum programa neste computador abre %1.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>Esta não é uma imagem que o NIMB-Chat consiga ler.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Imagem %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>Esta imagem é grande demais para ser mostrada: tem mais de %1 megapixels. Salve-a.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>Pesquisa nesta conversa; Ctrl+H pesquisa em tudo o que foi guardado</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Diferenciar maiúsculas de minúsculas</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>Anterior (Enter)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>Próxima (Shift+Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Fechar (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>Pesquisar em tudo o que foi guardado</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>Abre a janela do histórico</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Pesquisando...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Não encontrado</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1, %2, em “%3”</translation>
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
        <translation>Recusado</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>Recusado automaticamente</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Encerrado</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>Convite</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Chegada</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Tempo</translation>
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
        <translation>Fonte dos registros</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Família</translation>
    </message>
    <message>
        <source> points</source>
        <translation> pontos</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrito</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Itálico</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>Ana: Bom dia!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Família:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Tamanho:</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (não instalada)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nenhum programa neste computador abre %1.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>Ir para a linha mais recente</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n nova linha</numerusform>
            <numerusform>%n novas linhas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>Algumas das mensagens que aguardam envio não puderam ser lidas e se perderam.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>Já há %1 mensagens aguardando envio, e não é possível adicionar outras.</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- uma mensagem que aguardava %1, que não é mais um contato, não foi enviada ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- a mensagem que aguardava %1 foi enviada ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- as %1 mensagens que aguardavam %2 foram enviadas ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>O que você escreveu para %1 (%2) aguarda envio para %3. Agora quem está lá é %4 (%5).

Enviar para %4?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- o que você escreveu para %1 em %2 não foi enviado no prazo de sete dias ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>Apelido</translation>
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
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>Presença desconhecida</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>Não é mais um contato</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>aguardando: %1</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>aguardando envio: %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>não se sabe se %1 está online: o que você escrever será enviado quando %1 voltar</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>não se sabe se %1 está online</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>não se sabe se %1 está online: o que você escrever talvez não chegue</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 está offline: o que você escrever será enviado quando %1 voltar</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 está offline</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 está offline: o que você escrever não chegará</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 não é mais um contato: o que vier de lá não será mostrado</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>Não enviar mais tarde</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>Enviar quando %1 voltar</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>O que aguarda nesta conversa não será enviado, e o que você escrever agora não aguardará</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>O que você escreveu e não chegou é guardado e será reenviado depois, assim como o que você escrever agora</translation>
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
        <translation>&amp;Texto:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>oferecido</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>na fila</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1% de %2, %3 por segundo</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1% de %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>pausado em %1%</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>verificando</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>salvo e verificado</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>salvo; o remetente não forneceu dados para a verificação</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 não oferece mais este arquivo.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>verificando o que já chegou: %1%</translation>
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
        <translation>Página da Web (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copiar	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>Selecionar &amp;tudo	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reduzir</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Tamanho &amp;normal</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>&amp;Localizar...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>&amp;Salvar conversa como...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>Copiar &amp;endereço do link</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(sugestões demoram mais)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(nenhuma sugestão)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Desativada</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>Os arquivos deste dicionário não podem ser lidos ou estão danificados</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>Adicionar ao dicionário</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Ortografia</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>Apelido</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>arquivos ainda incompletos quando o NIMB-Chat foi encerrado: %2; %1 permite retomá-los</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>Ferramentas &gt; Transferências...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>Sobre o NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>Imagem do NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>Um mensageiro simples que funciona com UDP/IP, destinado ao uso em uma pequena rede local</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>Software livre sob a licença MIT, sem nenhuma garantia. Nada do que é enviado é criptografado: todos na sua rede podem ler.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>&amp;Informações do sistema...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>As informações do sistema não estão disponíveis no momento</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>Adicionar usuário offline</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>Informe os dados do usuário</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>&amp;Apelido</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>&amp;Estação de trabalho</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>Endereço &amp;IP</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>Convites para conferências - NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>Convites</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>Ninguém convidou você para uma conferência. Inicie uma e convide seus contatos pelo menu deles.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>Iniciar conferência</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Aceitar</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>&amp;Recusar</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>Recusar &amp;todos</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>Remove os convites já encerrados</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>Recusar automaticamente após</translation>
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
        <translation>Atualizar lista</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>Remover usuário</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>Mostrar/ocultar participantes</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>Ainda não há mais ninguém aqui.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>Convidar alguém...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>Convidar mais alguém...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>Nenhum outro contato está online</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>Avatares</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>Mostrar/ocultar avatares</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>incerto</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>erro</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>em andamento</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat - Diagnóstico de rede</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Verificar &amp;novamente</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>&amp;Copiar relatório</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>&amp;Este contato responde?</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>Contato a consultar</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>Ainda não há ninguém na sua lista</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>Cons&amp;ultar</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>Os últimos datagramas</translation>
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
        <translation>Endereço</translation>
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
        <translation>Nada foi enviado ou recebido ainda.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>Mostrar o que as &amp;pessoas escreveram</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>Nada foi descartado.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>Descartados:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat - Histórico</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversas</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>Pesquisar na seleção</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>primeiro dia</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>último dia</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>from</source>
        <translation>de</translation>
    </message>
    <message>
        <source>to</source>
        <translation>até</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>Apa&amp;gar...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>A exportação foi interrompida.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>Todas as conversas</translation>
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
        <translation>A enviar (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>O que você escreveu para contatos que não estavam online</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>Não enviada para %1</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>A enviar para %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>Ainda não há nada guardado. Nas opções, você escolhe se as conversas serão guardadas.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>Nada corresponde à sua pesquisa.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Página da Web (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>Histórico do NIMB-Chat</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>Mensagens gravadas: %1.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>Mensagens gravadas até agora: %1</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>A &amp;mensagem selecionada</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>Apagar definitivamente a mensagem selecionada?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>A &amp;conversa selecionada</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>Apagar definitivamente tudo o que foi guardado de “%1”?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>Os &amp;dias selecionados</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>Apagar definitivamente tudo o que foi guardado dos dias selecionados?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tudo</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>Apagar definitivamente tudo o que foi guardado de todas as conversas?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>Apagar a mensagem selecionada? Ela não será enviada.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>Apagando...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>Nada foi apagado: não é possível gravar no histórico.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>Apagar definitivamente tudo o que foi guardado de todas as conversas? O que está a enviar permanece e será enviado.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat - Convidar por net send</translation>
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
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>Texto &amp;padrão</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>&amp;Texto próprio</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>Texto próprio</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>Enviar ao computador %2, para %1</translation>
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
        <translation>Boas-vindas ao NIMB-Chat!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>Escolha um apelido para esta sessão</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>&amp;Apelido:</translation>
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
        <translation>Registro</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>Registro limpo.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contatos</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>Detalhes dos contatos</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>Apelido e status</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>Todos os detalhes</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>Atuali&amp;zar</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>Sem toques</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>&amp;Detalhes</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>Contato selecionado</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>Seu estado</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>Resposta automática</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>Texto da resposta...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>Endereços consultados</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>Não consulta mais ninguém</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos os arquivos (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat - Varredura de rede</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>Procurar novos usuários do NIMB-Chat na rede</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>&amp;Nome da estação de trabalho/endereço IP:</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>Todos em uma rede deste computador</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>Todos em...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>Nota: você pode usar o IP de broadcast para varrer uma rede inteira (por exemplo, se o seu endereço IP é 192.168.1.1 e a máscara de sub-rede é 255.255.255.0, o endereço IP de broadcast é 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>Este computador não está em nenhuma rede no momento.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>&amp;Diagnóstico de rede...</translation>
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
        <translation>Aviso do NIMBChat!</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>ocultar</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>O que aconteceu</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>&amp;Omitir mudanças de status na janela privada</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>Desativar som dos toques e&amp;nviados</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>Desativar som dos toques re&amp;cebidos</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>Manter a janela privada sempre &amp;visível</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>Abrir a janela privada &amp;minimizada (padrão)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>Fec&amp;har uma janela privada apenas a oculta e mantém as mensagens</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>Desativar &amp;janela de notificação</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>Se marcada, nenhum aviso desliza para a tela, nem de quem entra e sai nem do que chega</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>LiveType &amp;desativado por padrão</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>O &amp;botão Fechar oculta a janela principal (o ícone da bandeja a traz de volta)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>Avisar &amp;sobre mensagens e convites</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>Quando a janela correspondente não está ativa e o seu estado não é Ocupado; nunca há avisos de um contato silenciado</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>E&amp;xibir o conteúdo das mensagens</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>Som &amp;quando chega uma mensagem</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>Som quando alguém fica on&amp;line</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>Som a cada convi&amp;te</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat - Opções</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Você</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Apelido:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>Seus próprios estados</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>Estados próprios:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>Sons e avisos</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>O que chega enquanto você está em outra janela</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>Guardar conversas</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>por um ano</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>para sempre</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>Guardar conversas:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>Janelas privadas</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>Janela principal e rede</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>&amp;Porta UDP:</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>Seu endereço</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>Se&amp;u endereço:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>padrão do sistema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>A alteração entra em vigor na próxima inicialização.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>Fonte dos registros</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>&amp;Fonte...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>As novas janelas a usam; as abertas mantêm a sua.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>Seu avatar</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>Sem &amp;avatar</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>Uma &amp;imagem:</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>Ima&amp;gens que mudam:</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>A imagem</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>Ca&amp;rregar...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>De onde vêm as imagens</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>da câmera</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>de uma pasta</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>&amp;Escolher...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>Também é possível soltar ou colar uma imagem aqui. As imagens que mudam param quando o NIMB-Chat é encerrado; a imagem é mantida.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>perguntar</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>Definido pela variável de ambiente NIMBCHAT_ADDRESS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1, %2 pontos</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>fonte do sistema: %1, %2 pontos</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>Imagens (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Iniciar com a área de trabalho</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>A cada login, minimizado, com o seu apelido</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat - Conversa privada</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>O que o contato está digitando</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>Toque!</translation>
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
        <translation>O contato vê o que você digita antes de enviar</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Humor</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>Avatar</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>Avatar do contato</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>Seu humor (não especificado)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>Humor do contato (não especificado)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Você</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Contato</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>Endereço do contato</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>Seu humor (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>Humor do contato (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat - Enviar contatos para “%1”</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>Escolher os contatos selecionados</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>Escolher todos os contatos</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>Retirar os contatos selecionados</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>Retirar todos os contatos</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>Selecione os contatos que deseja enviar</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>Contatos que podem ser enviados</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>Não há mais contatos para enviar</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>Contatos escolhidos para envio</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>Os contatos movidos para cá serão enviados</translation>
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
        <translation>Abrir o manual na página da janela</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>Localizar contato; digitar na lista tem o mesmo efeito</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>O que foi guardado das conversas</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>Abrir a janela privada do contato selecionado</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>Remover os contatos selecionados, após confirmação</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>Sair da busca por contato</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Enviar a mensagem</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>Iniciar outra linha</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>Em uma caixa vazia: recuperar a última mensagem</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>Escolher um emoji</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>Enviar toque (janelas privadas)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fechar a janela</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>Sair da busca, dos emoticons ou dos emojis</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Pesquisar no registro</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>Copiar o que está selecionado</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Letras maiores</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Letras menores</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>Letras no tamanho normal</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>Todas as janelas</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>Janela principal</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversas</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat - Atalhos de teclado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>Você sabia?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Dica</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>O NIMB-Chat é software livre sob a licença MIT. Fique à vontade para repassá-lo a todos na sua rede.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>&amp;Mostrar dicas ao iniciar</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>&amp;Próxima dica</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat - Transferências</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>O que você oferece, enquanto o NIMB-Chat estiver aberto</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>O que você oferece</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>Nada está sendo oferecido. Arraste arquivos ou pastas para uma conversa ou clique no clipe de papel.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>Até quando é oferecido</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>Por 24 horas</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>Até ser baixado uma vez</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Até ser interrompido</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>O que os outros oferecem a você</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>Ninguém ofereceu um arquivo a você desde que o NIMB-Chat foi iniciado.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>S&amp;alvar...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;usar</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Retomar</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>Abrir pa&amp;sta</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>Nenhum programa neste computador abre %1.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>Salvar &amp;tudo...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>Salva em uma pasta tudo o que é oferecido e ainda não foi baixado</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>Salvar &amp;tudo (%1)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>&amp;Descartar...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>Desiste do arquivo e remove o que chegou dele</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>Descartar “%1”? O que chegou dele, %2, será removido do disco.</translation>
    </message>
</context>
</TS>
