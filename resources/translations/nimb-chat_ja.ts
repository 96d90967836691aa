<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>すべての項目を入力してください</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>自分自身は追加できません...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>この IP アドレスは別のユーザーが使用しています</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>これは 1 台のコンピューターのアドレスではありません。ここに送った内容はネットワーク上の全員に届きます。</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>このアドレスは保存できません。保存データの末尾を示す記号として使われています。</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>192.168.1.20 のような形式のアドレスではないため、送信できません。</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>カメラがありません。</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>カメラが停止しました: %1</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>カメラが取り外されました。</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>%1 (自分)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>会議 #%1 (自分が主催) - NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>会議 #%1 (主催: %2) - NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« NIMB-Chat [日付: %1 - 時刻: %2] 会議 #%3 準備完了 »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>会議 #%1</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>%2 の会議 #%1</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- この会議は終了しました。</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- %1 さんを会議から退出させました。</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>このウィンドウを閉じると会議が終了します。続行しますか?</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>会議から退出しますか?</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- %1 さんが会議に参加しました</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- %1 さんが会議から退出しました。</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- %1 さんは会議への参加を辞退しました</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>会議ウィンドウはこれ以上開けません。</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>このプロファイルで NIMB-Chat は起動していません。</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>起動中の NIMB-Chat から応答がありません。</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>コマンドが長すぎます。</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>プライベートチャット(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>ブザーを鳴らす(&amp;B)</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>ユーザーを削除(&amp;M)</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>連絡先を送信(&amp;C)</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>ユーザーを招待(&amp;N)</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>「%1」とプライベートチャット</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>「%1」のブザーを鳴らす</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>%1 人のユーザーを一覧から削除</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>「%1」を一覧から削除</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>「%1」に連絡先を送信(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>「%1」に net send でメッセージを送信(&amp;N)</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>「%1」を招待(&amp;N)</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>%1 (未読メッセージ: %2 件)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>%1 (%2、%3)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 さんはオフラインのため、書いたメッセージは届きません</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>%1 さんがいるかどうかを確認中です。確認できるまでウィンドウは開きません</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>%1 さんがいるかどうかは不明です。「再スキャン」で確認できますが、自分がいることも連絡先に知られます</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>%1 さんがいるかどうかは不明です。「再スキャン」で確認できます</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>ワークステーション「%2」のユーザー「%1」(%3) を削除しますか?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>次の %1 人のユーザーを削除しますか?</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (ほか %1 人)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>ユーザーの削除の確認</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>%1 件の連絡先を選択中</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>「%1」は 1 台のコンピューターのアドレスではありません</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>%1 は前の行にもあります</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>UTF-8 で書かれていません</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>次のようになっている必要があります: %1</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>引用符の対応が取れていません</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>項目が 3 つではありません</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>%1 に送った内容はネットワーク上の全員に届きます</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>%1 は、使うコンピューター自身を指すアドレスです</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>%2 の %1 行目</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>; %1 行目: %2</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>%1。このファイルから連絡先は取り込まれませんでした。</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>%1 から取り込んだ連絡先: %2 件、登録済み: %3 件</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>、除外: 自分のアドレス</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>新しい連絡先</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>%1 さんに送信した連絡先: %2</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>最後のメッセージ: %1 %2</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>レジストリに書き込めません</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>連絡先 (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>連絡先の一覧としては大きすぎます</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み取れません (%2)。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 に書き込めません (%2)。</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>%1 に書き出した連絡先: %2 件</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>%1 に書き出した連絡先: %2 件、ほかの人から到達できないため除外: %3 件</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>自分宛てにデータグラムを送信しています。</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>ファイアウォールを調べています。</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>%1 は連絡先から削除されています。</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>%1 は 192.168.1.20 のような形式のアドレスではないため、送信できません。</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>この連絡先を削除し、正しいアドレスで追加し直してください。</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>%1 には問い合わせませんでした。「オフライン表示」の間に問い合わせると、自分がいることが知られるためです。</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>先に別の状態を選択してください。</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>このコンピューターには %1 に到達できるネットワークがありません。</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>連絡先がいるネットワークに接続してください。</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>応答を受け取れる状態ではないため、%1 には問い合わせませんでした。</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>先にポートの問題を解決してください。</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>%1 の応答を待っています。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>NIMB-Chat はこのコンピューター内だけで動作するように指定されており、ループバックネットワークを使用しています。</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>IPv4 アドレスを持つネットワークに接続されていません。</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>ケーブルを接続するか、ほかの人が使っている無線ネットワークに接続してください。</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>%1 として接続されています。</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>自分のアドレスは %1 ですが、このアドレスを持つネットワークカードがこのコンピューターにありません。</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>NIMBCHAT_ADDRESS を修正するか、そのネットワークに接続してください。</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>ネットワークに接続するか、「ツール」&gt;「オプション」で「自分のアドレス」を変更してください。</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>自分のアドレスはカード %2 の %1 ですが、このカードでは誰も見つかりません。1 台のコンピューターだけにつながっているか、このコンピューターの内部用です。</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>ほかの人が別のネットワークにいる場合は、NIMBCHAT_ADDRESS を修正してください。</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>ほかの人が別のネットワークにいる場合は、「ツール」&gt;「オプション」の「自分のアドレス」でそのネットワークのカードを選択してください。</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>自分のアドレスは %1 で、このコンピューター上のプログラムからしか到達できません。</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>ほかのコンピューターと通信するには、NIMBCHAT_ADDRESS を設定せずに NIMB-Chat を起動してください。</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>オプションの「自分のアドレス」で選択されているネットワークカード %1 は接続されていません。現在のアドレスはカード %3 の %2 です。</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>そのカードを接続するか、「ツール」&gt;「オプション」で「自分のアドレス」を変更してください。</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>自分のアドレスはカード %2 の %1 です。</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>NIMB-Chat は UDP ポート %1 で待ち受けています。</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>NIMB-Chat によるポート %1 の使用がシステムで許可されていません。</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>「ツール」&gt;「オプション」で、1023 より大きいポートを指定してください。全員が同じポートを使用する必要があります。</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>このコンピューターに指定のアドレスがないため、待ち受けできません。</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>そのアドレスを持つネットワークに接続してください。NIMB-Chat は 5 秒ごとに再試行します。</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>ポート %1 はプログラム %2 (プロセス %3) が使用しています。</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>そのプログラムを終了してください。NIMB-Chat は 5 秒ごとに再試行します。</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>ポート %1 は別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>どのプログラムかは「sudo ss -ulpn sport = :%1」で確認できます。</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>NIMB-Chat はポート %1 で待ち受けていません。</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>NIMB-Chat は 5 秒ごとに再試行します。解決しない場合は、再起動してください。</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>NIMB-Chat は起動していません。UDP ポート %1 は使用できます。</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>NIMB-Chat は実行中 (プロセス %1) で、UDP ポート %2 で待ち受けています。</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>処理待ちのデータグラム用の領域がシステムから割り当てられていません。</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>システムが保持できる処理待ちのデータグラムは %1 KiB だけです。多数の応答が同時に届くと、一部が失われます。</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>「sudo sysctl -w net.core.rmem_max=4194304」で増やすことができます。</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>システムは処理待ちのデータグラムを %1 KiB まで保持します。</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>自分 (%1) 宛てのデータグラムが戻ってきました。</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>自分 (%1) 宛てのデータグラムが 1 秒以内に戻ってきませんでした。</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>このコンピューターのファイアウォールが自分からのデータグラムまで遮断しているか、このアドレスがこのコンピューターのものではありません。</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>待ち受けが行われていないため、自分宛てのデータグラムは送信しませんでした。</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>起動中のプログラムに届いてしまうため、自分宛てのデータグラムは送信しませんでした。この確認は、そのプログラムのネットワーク診断で行えます。</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>このコンピューター上の全員に問い合わせることができます。</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>全員に問い合わせることのできるネットワークがありません。</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>「ユーザー」&gt;「オフラインユーザーの追加」で、ほかの人をアドレスで追加してください。</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>全員への問い合わせを送信できます: %1</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>全員への送信がシステムに拒否されました: %1</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>このコンピューターのファイアウォールが送信を遮断しています。このアドレスへの UDP 送信を許可してください。</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>このコンピューターにファイアウォールは見つかりません。</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>ファイアウォール %1 は有効で、UDP ポート %2 の受信を許可しています。</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>ファイアウォール %1 は有効で、UDP ポート %2 の受信を遮断しています。誰からも届きません。</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>次のコマンドでポートを開くことができます: %1</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>ファイアウォール %1 は有効で、UDP ポート %2 の受信を一部の相手だけに許可しているようです。</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>ほかの人からのメッセージが届かない場合は、次のコマンドで全員にポートを開くことができます: %1</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>ファイアウォールが UDP ポート %1 を遮断しているかどうかは、管理者だけが確認できます。</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>「sudo nimb-chatctl doctor」で確認できます。</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>このコンピューターではファイアウォールが有効な可能性がありますが、すべての規則を表示できるプログラムがありません。</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>規則は「sudo nft list ruleset」と「sudo iptables-legacy -S」で表示できます (nftables および iptables パッケージに付属)。</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>ファイアウォール %1 は有効です。UDP ポート %2 の受信を許可しているかどうかは、管理者だけが確認できます。</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>カード %1 と %2 は同じネットワークにあります。選択されている方のアドレスを使用しています。</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>カード %1 と %2 は同じネットワークにあります。ほかの人には、どちらのアドレスで見えるかわかりません。</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>どちらかを無効にするか、「ツール」&gt;「オプション」の「自分のアドレス」で一方を選択してください。</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>自分のアドレスは %1 のものです。これは VPN など、1 台のコンピューターだけにつながる接続です。</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>ほかの人がローカルネットワークにいる場合は、「ツール」&gt;「オプション」の「自分のアドレス」でそのネットワークのカードを選択してください。</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>VPN (%1) が接続されていますが、自分のアドレスはこの VPN のものではありません。</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>VPN はなく、このコンピューターの 2 枚のカードが接続されているネットワークもありません。</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>%1 は %2 ms で応答しました。</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>%1 は応答しませんでしたが、%2 のコンピューターは今も、または少し前まで動作しています。</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>相手側のファイアウォールが UDP を遮断している、NIMB-Chat が起動していない、ユーザーが「オフライン表示」になっている、または相手にまだ認識されていない可能性があります。双方で「ユーザー」&gt;「ここにいる全員を検索」を実行し、相手側でもネットワーク診断を実行してください。</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>%1 は応答しませんでした。自分のネットワークにアドレス %2 のコンピューターはありません。</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>電源が入っていない、アドレスが変わった、別のネットワークにある、またはアクセスポイントが端末どうしの通信を遮断している (クライアント分離) 可能性があります。</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>%1 は応答しませんでした。アドレス %2 は、ルーターの先やトンネルの先など、別のネットワークにあります。</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>そこに至る経路で UDP が双方向に許可されている必要があります。また、ファイアウォール、プログラムの未起動、ユーザーの「オフライン表示」など、同じネットワーク内で起こる問題も考えられます。</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>%1 は応答しませんでした。%2 への経路は自分のアドレス %3 を通りますが、オプションではカード %4 が選択されています。そのアドレス %5 には、相手側から到達できない可能性があります。</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>「ツール」&gt;「オプション」の「自分のアドレス」で、「自動」またはそのネットワークのカードを選択してください。</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>プライベートメッセージ</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>会議メッセージ</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>コマンドなし</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>不明なコマンド</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>不完全</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[良好]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[要確認]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[問題あり]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>out</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>起動後に破棄したデータグラム:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>最近のデータグラム:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>連絡先にないアドレスから: %1</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>不完全なコマンド: %1</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>対応していないコマンド: %1</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>開いていないプライベートウィンドウ宛て: %1</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>存在しない、または許可されない会議宛て: %1</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>連絡先にできないアドレス: %1</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>一覧が満杯のときの新しい連絡先: %1</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>未読が多すぎるときのメッセージ: %1</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>未処理の招待が多すぎるときの招待: %1</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>連絡先にない人のアバターが多すぎるときのアバター: %1</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>満杯の一覧から新しい連絡先のために外された連絡先: %1</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>頻繁すぎるアバターや一覧の要求と送信: %1</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>送信できなかったデータグラム: %1</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>読み取る前に失われたデータグラム: %1</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>特に多く送信する相手からの、待機できる数を超えたもの: %1</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>うち %1 から: %2</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>スマイリー</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>動物と自然</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>食べ物と飲み物</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>旅行と場所</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>アクティビティ</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>物</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>記号</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>旗</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>大笑いの顔</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>泣いている顔</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>笑顔</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>悲しい顔</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>真顔</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>舌を出した顔</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>ウインクした顔</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>ウインクして舌を出した顔</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>にっこり笑った顔</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>画像のフォルダーを選択</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>送信するフォルダーを選択</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>保存先のフォルダーを選択</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>送信するファイルを選択</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>ページ設定</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>%1 は提供を開始した後に変更されたため、転送を終了しました。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>%1 はファイルの数が多すぎるため、まとめて送信できません。</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>%1 を最後まで読み取れないため、送信できません。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか %2 件</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>%2 の中の %1 件を除外しました: %3。リンクの参照先と読み取れないものは送信されません。</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>%1 を送信できません。読み取り可能なファイルまたはフォルダーではありません。</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>「%1」には表示できる画像がありません。</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>設定が空です。</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>%1 %2 に保存された設定のコピーがあります。このコピーを使って NIMB-Chat を続行しますか? 使わない方は別の名前で残されます。</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>%1 %2 に保存された設定のコピーがあります。ニックネームを指定せずに NIMB-Chat を起動すると、このコピーを使うことができます。</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>履歴が壊れていたため、新しい履歴を作成しました。読み取ることのできたメッセージ %1 件を引き継ぎました。古いファイルは %2 です。</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>NIMB-Chat の新しいバージョンで作成されています</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>%1 の履歴は現在使用できません (%2)。これまでに保存された内容は変わりません。</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>NIMB-Chat の実行中に %1 の履歴が削除されたか置き換えられました。これ以降の内容は、現在そこにあるものに保存されます。</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>%1 の履歴は現在読み取りしかできません (%2)。この状態が変わるまで、新しい内容は保存されません。</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>フォルダー %1 はなくなっています。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 に書き込めません (%2)。</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>送信者との接続が切れました。</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>送信者に接続できません。</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>送信者が送信を中断したか、使用できない応答を返しました。</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>送信者が使用できない応答を返しました。</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>送信者は提供を終了しています。</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>大きすぎるため表示できません。</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>受信した内容が送信された内容と一致しないため、削除しました。</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>%1 の名前を変更できません (%2)。</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>%1 の空き容量が不足しています。</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>%1 の空き容量がなくなりました。</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>%1 への書き込みを続けられません (%2)。</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>%1受信済みの部分は残されます。</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>このコンピューターに空いているポートがないため、%1 を送信できません。</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>%1 %2 - %3 さんから会議に招待されました</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>ユーザーが選択されていません。</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>%1 さんはオンラインではありませんでした。これはおそらく届いていません</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>%1 さんが戻るまで送信待ち</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新着</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [日付: %1 - 時刻: %2] 準備完了 »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>%1 さんがニックネームを %2 に変更しました ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>%1 さんがオンラインになりました ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>%1 さんがオフラインになりました ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>%1 さんが状態を「%2」に変更しました ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>%1 さんがブザーを鳴らしました ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>%1 さんから連絡先「%2」(%3) を受信しました ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- 対応していないコマンドを受信しました (%1) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- 不正なデータを受信しました (%1) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- ほかにも解釈できないデータを %1 から %n 件受信しました ---</numerusform>
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
        <translation>新規</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>すべて保存</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>ページ設定</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>印刷プレビュー</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>最近使ったファイル 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>最近使ったファイル 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>最近使ったファイル 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>ネットワークスキャン(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>オフラインユーザーの追加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>ここにいる全員を検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>履歴(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>連絡先のインポート(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>連絡先のエクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>新規作成(&amp;N)...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>招待の表示(&amp;I)...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>ログウィンドウの表示(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>転送(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>オプション(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>目次(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>トピックの検索(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>マニュアル(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>今日のヒント(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>ネットワーク診断(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>キーボードショートカット(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>ユーザー(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>会議(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>プライベートチャット(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>ブザーを鳴らす(&amp;B)</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>会議 #&amp;1 に招待</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>会議 #&amp;2 に招待</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>会議 #&amp;3 に招待</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>会議 #&amp;4 に招待</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>会議 #&amp;5 に招待</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>連絡先を送信(&amp;C)</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>ユーザーを削除(&amp;M)</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>ユーザーを招待(&amp;N)</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>ミュート(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>履歴を残さない(&amp;K)</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>ファイルを送信(&amp;F)...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>NIMB-Chat: %1, %2</source>
        <translation>NIMB-Chat: %1、%2</translation>
    </message>
    <message>
        <source>%1, %2 unread</source>
        <translation>%1、未読 %2 件</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>前回の NIMB-Chat 終了時: %1</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>保存されている独自の状態「%1」は、先頭に画像を示す数字がないため読み込まれませんでした。NIMB-Chat を終了すると完全に失われます。</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- このデスクトップにはトレイアイコンが表示されないため、NIMB-Chat は隠す代わりに最小化されました ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>転送中のファイルが %1 件あり、中断されます。それでも NIMB-Chat を終了しますか?</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>プログラムの終了中に届いたメッセージが失われました: %1 件。</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>プログラムの終了時に未読だったメッセージが失われました: %1 件。</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>真っ白</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>かなり白い</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>最も明るい緑</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>明るい緑</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>ほぼ緑</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>かなり緑</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>ほぼ黄色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>主に黄色</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>かなり赤い</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>暗い赤</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>ほぼ黒</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>メッセージは送信されませんでした。プログラム smbclient がインストールされていません。パッケージ smbclient (Debian、Ubuntu、Arch) または samba-client (Fedora) をインストールしてから、もう一度送信してください。</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>メッセージは送信されませんでした。一時ファイルに書き込めません (%1)。</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>メッセージは送信されませんでした。%1 を起動できませんでした (%2)。</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>メッセージは送信されませんでした。このシステムには「%1」コマンドがありません。</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>「%1」は、コンピューターやネットワークの名前でもアドレスでもないため、問い合わせは行われませんでした。</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>「%1」のアドレスが見つからないため、問い合わせは行われませんでした。</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>%1 はアドレスの数が多すぎるため、1 つずつ問い合わせることができません。最大の範囲は /%2 です。</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>新着メッセージ %1 件</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>新着メッセージ 1 件</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>%1 さんから会議に招待されました</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>%1 さんがブザーを鳴らしました</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>%1 (会議 #%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>新着メッセージ</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>新着メッセージ</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (未接続)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>ポートは 1 ～ 65535 の数値で指定してください。</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>デスクトップと同時に起動する設定を変更できません: %1</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>ネットワークなし</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>ネットワークに接続されました。自分のアドレスは %1 です</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>自分のアドレスが %1 に変わりました</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>このコンピューターはスリープから復帰しました。自分のアドレスは %1 のままです</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>ネットワークが変わりました。自分のアドレスは %1 のままです</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>オプションの「自分のアドレス」で選択されているネットワークカード %1 は接続されていません。接続されるまで、自分のアドレスは %2 です。</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>このコンピューターに IPv4 アドレスを割り当てているネットワークがないため、誰からも届きません。ネットワークに接続されると、NIMB-Chat は動作を再開します。</translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation>オンライン</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>取り込み中</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>離席中</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>オフライン表示</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... 独自の状態を追加...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状態: %1</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>自動応答メッセージ (取り込み中)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>自動応答メッセージ (離席中)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>「オフライン表示」になっています。再スキャンすると、自分がいることが連絡先に知られます</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>すべての連絡先に、オンラインかどうかを問い合わせます</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>独自の状態は %1 個までしか保存されません。「%2」は NIMB-Chat を終了すると失われます。</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>%1 さんがブザーを鳴らしています...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>%1 さんがメッセージを入力しています...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>この画像は 50 メガピクセルを超えています。小さい画像を選択してください。</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>この画像は壊れています。</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>この画像は壊れているか、大きすぎます。</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>NIMB-Chat で読み取れる画像ではありません。</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>「%1」を開けません。</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>ポート %1 は使用中</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>ポート %1 なし</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>NIMB-Chat に指定されたアドレスがこのコンピューターにないため、ポート %1 には誰からも届きません。NIMBCHAT_ADDRESS を修正するか、ネットワークに接続してください。NIMB-Chat は 5 秒ごとに再試行します。</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>NIMB-Chat によるポート %1 の使用がシステムで許可されていないため、誰からも届きません。1023 より大きいポートを選択してください。</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>ポート %1 でネットワークを使用できないため、誰からも届きません。NIMB-Chat は 5 秒ごとに再試行します。</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>ポート %1 を別のプログラムが使用しているため、誰からも届きません。そのプログラムを終了してください。NIMB-Chat は 5 秒ごとに再試行します。</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>ポート %1 が空き、受信できるようになりました。</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>ポート %1 で再び受信できるようになりました。</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>%1 さんはオンラインです</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 さんはオフラインです</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>%1 さんがオフラインになりました</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>%1 さんが状態を「%2」に変更しました</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« NIMB-Chat [日付: %1 - 時刻: %2] 準備完了 »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>%1 さんはオフラインです。ファイルは、%1 さんが戻ったときに送信できます。</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>%1 - NIMB-Chat - プライベートチャット</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>ファイルではないものが同じ場所にあります</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>NIMBCHAT_ADDRESS に指定された「%1」は IPv4 アドレスではありません。代わりに、NIMB-Chat はすべてのインターフェイスで待ち受けます。</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>処理待ちのデータグラム用にシステムから割り当てられた領域は、%2 KiB ではなく %1 KiB です。急に大量のデータが届くと、一部が失われる可能性があります。</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>このコンピューターには %1 を開くプログラムがありません。</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- NIMB-Chat の前回の終了時に一部を保存できませんでした。変更内容を引き継ぎました ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- NIMB-Chat の前回の終了時に一部を保存できませんでした。壊れた値 %1 件を除き、変更内容を引き継ぎました ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>起動中の NIMB-Chat はコマンド「%1」に対応していません。</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>「%1」という名前またはアドレスの連絡先はありません。</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>「%1」という連絡先が複数あります。アドレス (%2) で指定してください。</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>%1 はオンラインではないため、何も送信しませんでした。</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>送信するテキストがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>「invisible」にテキストは付けられません。</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>「%1」という状態はありません。online、busy、away、invisible があります。</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>メッセージは %1 文字までですが、それを超えているため、何も送信しませんでした。</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>起動中の NIMB-Chat はまだニックネームの入力を待っています。</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>コマンドが長すぎます。</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (ほか %1 行)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (ほか %1 文字)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>%1 さんは %2 と %3 の両方から応答しているため、1 人にまとめて表示します</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>このコンピューターには %1 に到達できるネットワークがないため、問い合わせは行われませんでした。</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>誰がいるかを問い合わせています: %1</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>%2 件中 %1 件に問い合わせたところで停止しました</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>問い合わせは行われませんでした。「オフライン表示」の間に問い合わせると、自分がいることが全員に知られるためです</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>ネットワークに接続されていないため、問い合わせできません</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>%1 の全員</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>「オフライン表示」のため、問い合わせを中止しました</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>%1 は自分のアドレスです。ここに送った内容はほかの人には届きません</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>応答がありませんでした。ネットワークに接続されていないため、このコンピューターだけに問い合わせました</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>応答がありませんでした。誰もいない、ファイアウォールに遮断されている、またはネットワークが端末どうしの通信を遮断している可能性があります。原因は %1 で確認できます</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>ヘルプ &gt; ネットワーク診断...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>応答: %1 件 (%2)、新規: %3 件</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>保存されている設定 %1 の値「%2」は使用できません。代わりに %3 を使用します。</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>セクションでも、値のあるキーでもありません</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>セクション「%2」にキー「%1」はありません</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>%1: ほかに意味のない行: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1、%2 行目: %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み込めません: %2。</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>ファイルが UTF-8 で書かれていません</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>ディスクの空き容量がありません</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>別のプログラムがファイルを使用しています</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>ファイルが壊れているか、別の内容が入っています</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>ファイルが移動されたか、置き換えられました</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>ファイルまたはフォルダーが読み取り専用です</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>設定を %1 に保存できませんでした (%2)。前回の保存後の変更は失われますが、それまでに保存された内容は変わりません。</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>変更内容を現在 %1 に保存できません (%2)。保存できるようになる前に NIMB-Chat が終了すると、変更は失われます。</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>設定フォルダー %1 を作成できません (%2)。プログラムは既定値で起動し、設定は保存されません。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>設定ファイル %1 を作成できません (%2)。プログラムは既定値で起動し、設定は保存されません。</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>%1 の設定を読み取れません (%2)。プログラムは既定値で起動し、ファイルは変更されません。</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>%1 の設定を変更できません (%2)。変更した内容は、プログラムを終了すると失われます。</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>プログラムの起動時に読み取れなかったため、保存すると元の設定が失われます</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>前回の NIMB-Chat の起動時に、設定が壊れているか空になっていました。</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>%1 の設定の一部が壊れているため (%2)、保存した内容と異なる可能性があります。</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>コピー %1 を設定として使用できません (%2)。プログラムは設定なしで続行します。</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>設定は保存されましたが、%1 のコピーを更新できませんでした (%2)。</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>今日のヒント - ヒント #%1</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>表示できるヒントがありません。プログラムに付属のファイル TOTD.txt が見つからないか、読み取れません。</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>今日のヒント</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>自動応答メッセージ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>%1 の設定を読み取れないため、初期設定を使用します: %2</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>連絡先を検索 (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>連絡先を検索</translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation>オンライン</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>取り込み中</translation>
    </message>
    <message>
        <source>away</source>
        <translation>離席中</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>送信待ち %1 件</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>未読 %1 件</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>ニックネーム</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>ワークステーション</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>ウィンドウ番号</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>アバター番号</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>ミュート中</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>一覧にはまだ誰もいません。クリックするだけで、ネットワーク上の全員に問い合わせることができます。</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>ここにいる全員を検索</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>全員を表示</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>「%1」という名前の人はいません</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>会話</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>会話をクリアしました。</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>顔文字</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>顔文字と絵文字 (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>メッセージの文字数</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>入り切らなかった部分</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>会話は保存されません。</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>ファイルを送信</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>残りをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>ファイルを送信(&amp;E)...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>フォルダーを送信(&amp;D)...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>画像 %1.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>空き容量がないため、画像を送信できません。</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>画像が貼り付けられました (%1 × %2)。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>1 つのメッセージは %1 文字までです。貼り付けた内容の最後の %2 文字が入り切りませんでした。</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> 保存期間: %1</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>1 年間</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>無期限</translation>
    </message>
    <message>
        <source>no</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>送信する</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>やめる</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>ファイルを送信します。フォルダーは矢印または下方向キーから送信できます</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>これまでのファイルの問題: %1 件。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>残りをコピー</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>返信</translation>
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
        <translation>表示</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(ほか %1 件)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>最近使用したもの</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiPicker</name>
    <message>
        <source>Emoji</source>
        <translation>絵文字</translation>
    </message>
    <message>
        <source>Find an emoji</source>
        <translation>絵文字を検索</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>その名前の絵文字はありません。別の言葉で検索してください。</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>顔文字</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>この NIMB-Chat には、ファイル送信機能が組み込まれていません。</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>一度に送信できるファイルは %1 個までです。それより多い場合は、フォルダーに入れてそのフォルダーを送信してください。</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>同時に提供できるファイルは %1 個までです。次の画面でいくつか停止してください: ツール &gt; 転送...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>ファイルを送信できる相手がいません。</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>ファイルは暗号化されずに送信されます。このネットワークの通信を傍受できる人は、内容を読み取ることができます。</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>期限切れ</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>通知する相手がいませんでした</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>For</source>
        <translation>宛先</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>期限</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>%1 % (%2 へ)</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>取得: %1 回</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>未取得</translation>
    </message>
    <message>
        <source>over</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>終了: %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>取得されるまで</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>停止するまで</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>アドレス %1 で提供しているファイルがありますが、このアドレスはもうこのコンピューターにありません。再びこのアドレスになるか、ファイルを送信し直すまで、誰も取得できません。</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>アドレス %1 で提供中 (このコンピューターにはもうないアドレス)</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>ほかのファイル: %1 個。</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>すべて保存...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>ここで提供されているものすべてを 1 つのフォルダーに保存します</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>ここに表示</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>画像を取得し、保存せずにここに表示します</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>この行を隠します。「ツール」&gt;「転送」からは引き続き利用できます</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%2 さんからの %1</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>%1 を保存</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>このコンピューターには %1 を開くプログラムがありません。</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>NIMB-Chat で読み取れる画像ではありません。</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>画像 %1</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>この画像は %1 メガピクセルを超えており、大きすぎるため表示できません。保存してご覧ください。</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>この会話を検索します。保存されているすべての会話は Ctrl+H で検索できます</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>大文字と小文字を区別</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>前へ (Enter)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>次へ (Shift+Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>閉じる (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>保存されているすべての会話を検索</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>履歴ウィンドウを開きます</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>検索中...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>%1、%2、「%3」</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>nimb::InvitationList</name>
    <message>
        <source>%1 minute(s)</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>辞退</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>自動辞退</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>招待</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>受信日時</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>ログのフォント</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>フォント名</translation>
    </message>
    <message>
        <source> points</source>
        <translation> ポイント</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>太字(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>花子: おはようございます!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>フォント名(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>サイズ(&amp;S):</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (未インストール)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>このコンピューターには %1 を開くプログラムがありません。</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>最新の行へ移動</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>新しい行: %n 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>送信待ちのメッセージの一部が読み取れず、失われました。</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>すでに %1 件のメッセージが送信待ちのため、これ以上追加できません。</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- %1 は連絡先ではなくなったため、送信待ちのメッセージは送信されません ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- %1 さん宛ての送信待ちのメッセージを送信しました ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- %2 さん宛ての送信待ちのメッセージ %1 件を送信しました ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>%1 さん (%2) 宛てに書いたメッセージが、%3 への送信待ちになっています。現在、そこには %4 さん (%5) がいます。

%4 さんに送信しますか?</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- %2 に書いた %1 さん宛てのメッセージは、7 日以内に送信できませんでした ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>ニックネーム</translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation>オンライン</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>取り込み中</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>離席中</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>連絡先から削除済み</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>送信待ち: %1 件</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>未送信: %1 件</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>%1 さんがいるかどうかは未確認です。書いたメッセージは、%1 さんが戻ったときに送信されます</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>%1 さんがいるかどうかは未確認です</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>%1 さんがいるかどうかは未確認です。書いたメッセージが届かない可能性があります</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>%1 さんはオフラインです。書いたメッセージは、%1 さんが戻ったときに送信されます</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 さんはオフラインです</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>%1 さんはオフラインのため、書いたメッセージは届きません</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>%1 さんは連絡先から削除されているため、届いたものは表示されません</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>後で送信しない</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>%1 さんが戻ったら送信</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>この会話の送信待ちのメッセージは送信されません。これから書くメッセージも送信待ちになりません</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>書いたのに届かなかったメッセージを残しておき、戻ったときに送信し直します。これから書くメッセージも同様です</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>状態(&amp;S):</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>テキスト(&amp;X):</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>受信可能</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>順番待ち</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>%1 % / %2、毎秒 %3</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>%1 % / %2</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>%1 % で一時停止中</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>確認中</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>保存済み、確認済み</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>保存済み (送信者からの確認用データがないため未確認)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>From</source>
        <translation>送信者</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>%1 さんはこのファイルの提供を終了しています。</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>受信済みの部分を確認中: %1 %</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Web ページ (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 に書き込めません (%2)。</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>コピー(&amp;C)	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>すべて選択(&amp;A)	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>標準サイズ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>検索(&amp;F)...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>会話に名前を付けて保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>リンクのアドレスをコピー(&amp;L)</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(修正候補の取得に時間がかかっています)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(修正候補なし)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>オフ(&amp;O)</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>この辞書のファイルは読み取れないか、壊れています</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>辞書に追加</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>スペルチェック</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>ニックネーム</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>NIMB-Chat の終了時に受信が完了していなかったファイル: %2 個。%1 から再開できます</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>ツール &gt; 転送...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>NIMB-Chat のバージョン情報</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>NIMB-Chat の画像</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>UDP/IP で動作する、小規模な LAN 向けのシンプルなメッセンジャー</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>MIT ライセンスで提供される無保証のフリーソフトウェアです。送信内容は一切暗号化されないため、ネットワーク上の誰でも読み取ることができます。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>システム情報(&amp;S)...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>システム情報は現在利用できません</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>オフラインユーザーの追加</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>ユーザー情報の入力</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>名前解決</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>ニックネーム(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>ワークステーション(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>IP アドレス(&amp;I)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>会議への招待 - NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>招待</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>会議への招待はありません。自分で会議を開始し、連絡先のメニューから招待してください。</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>会議を開始</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>承諾(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>辞退(&amp;D)</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>すべて辞退(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>終了した招待を一覧から削除します</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>自動的に辞退するまで</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>分</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>参加者</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>一覧を更新</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>退出させる</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>参加者の表示/非表示</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>ここにはまだほかに誰もいません。</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>招待...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>さらに招待...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>オンラインの連絡先はほかにありません</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>アバター</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>アバターの表示/非表示</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>問題あり</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>診断中</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat - ネットワーク診断</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>再診断(&amp;A)</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>レポートをコピー(&amp;R)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>連絡先の応答の確認(&amp;D)</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>問い合わせる連絡先</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>一覧にはまだ誰もいません</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>問い合わせ(&amp;K)</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>最近のデータグラム</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>バイト数</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>まだ何も送受信されていません。</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>メッセージの内容を表示(&amp;P)</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>破棄されたデータグラムはありません。</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>破棄:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat - 履歴</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>会話</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>選択した範囲を検索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>最初の日</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>最後の日</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>from</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>to</source>
        <translation>～</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>消去(&amp;R)...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>エクスポートを停止しました。</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>すべての会話</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>To be sent (%1)</source>
        <translation>送信待ち (%1)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>不在の連絡先宛てに書いたメッセージ</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>%1 さん宛て (未送信)</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>%1 さん宛て (送信待ち)</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>まだ何も保存されていません。会話を保存するかどうかは、オプションで選択できます。</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>条件に一致するものがありません。</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Web ページ (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 に書き込めません (%2)。</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>NIMB-Chat の履歴</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>書き出したメッセージ: %1 件。</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>書き出し中のメッセージ: %1 件</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>選択したメッセージ(&amp;M)</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>選択したメッセージを完全に消去しますか?</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>選択した会話(&amp;C)</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>「%1」の保存内容をすべて完全に消去しますか?</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>選択した期間(&amp;D)</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>選択した期間の保存内容をすべて完全に消去しますか?</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>すべての会話の保存内容を完全に消去しますか?</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>選択したメッセージを消去しますか? このメッセージは送信されません。</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>消去中...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>履歴に書き込めないため、消去されませんでした。</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>すべての会話の保存内容を完全に消去しますか? 送信待ちのメッセージは残り、送信されます。</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat - net send で招待</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>送信(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>標準のメッセージ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>独自のメッセージ(&amp;O)</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>独自のメッセージ</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>コンピューター %2 の %1 さんに送信</translation>
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
        <translation>NIMB-Chat へようこそ!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>このセッションで使用するニックネームを入力してください</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>ニックネーム(&amp;N):</translation>
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
        <translation>ログ</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>クリアしました。</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>連絡先の詳細</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>ニックネームと状態</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>ユーザーの全情報</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>再スキャン(&amp;R)</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>ブザーをミュート</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>ユーザーの詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>選択した連絡先</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>自分の状態</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>自動応答</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>自動応答メッセージ...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状態: %1</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>問い合わせ済みのアドレス</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>これ以上の問い合わせを中止します</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat - ネットワークスキャン</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>ネットワークをスキャンして新しい NIMB-Chat ユーザーを検索</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>ワークステーション名/IP アドレス(&amp;W):</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>このコンピューターのネットワーク上の全員</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>全員の検索先...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>注: ブロードキャストアドレスを使用すると、ネットワーク全体をスキャンできます (たとえば、IP アドレスが 192.168.1.1、サブネットマスクが 255.255.255.0 の場合、ブロードキャストアドレスは 192.168.1.255 です)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>このコンピューターは現在ネットワークに接続されていません。</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>ネットワーク診断(&amp;D)...</translation>
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
        <translation>隠す</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>通知の一覧</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>プライベートウィンドウに状態変更のメッセージを表示しない(&amp;S)</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>自分が送るブザーの音を鳴らさない(&amp;L)</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>受け取ったブザーの音を鳴らさない(&amp;R)</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>プライベートウィンドウを最前面に表示する(&amp;T)</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>プライベートウィンドウを最小化して開く (既定)(&amp;M)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>プライベートウィンドウを閉じても隠すだけにし、メッセージを残す(&amp;K)</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>通知ウィンドウを表示しない(&amp;N)</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>オンにすると、オンライン状態の変化や届いたものを知らせるウィンドウが表示されなくなります</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>LiveType を既定で無効にする(&amp;D)</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>閉じるボタンでメインウィンドウを隠す (トレイアイコンで再表示)(&amp;C)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>メッセージと招待を通知する(&amp;V)</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>ウィンドウがアクティブでなく、「取り込み中」でないときに通知します。ミュートした連絡先からのものは通知しません</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>メッセージの内容を表示する(&amp;H)</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>メッセージの受信時に音を鳴らす(&amp;W)</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>誰かがオンラインになったときに音を鳴らす(&amp;B)</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>招待を受けたときに音を鳴らす(&amp;Y)</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat - オプション</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>You</source>
        <translation>自分</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>ニックネーム:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>独自の状態</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>独自の状態:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>音と通知</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>ほかの作業中に届いたもの</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>会話の保存期間</translation>
    </message>
    <message>
        <source>no</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>1 年間</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>無期限</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>会話の保存期間:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>プライベートウィンドウ</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>メインウィンドウとネットワーク</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>UDP ポート(&amp;P):</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>自分のアドレス</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>自分のアドレス(&amp;U):</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>デスクトップの設定</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>言語:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>変更は次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>ログのフォント</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>フォント(&amp;F)...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>新しいウィンドウに適用されます。開いているウィンドウのフォントは変わりません。</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>自分のアバター</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>アバターなし(&amp;A)</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>画像(&amp;I):</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>切り替わる画像(&amp;G):</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>読み込み(&amp;O)...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>画像の取得元</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>選択(&amp;E)...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>画像は、ここにドロップするか貼り付けることもできます。切り替わる画像は NIMB-Chat の終了時に解除されますが、固定の画像は次回も使用されます。</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>確認する</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>環境変数 NIMBCHAT_ADDRESS で指定されています</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>%1、%2 ポイント</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>デスクトップのフォント: %1、%2 ポイント</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>画像 (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>デスクトップと同時に起動する</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>ログインのたびに、最小化して、自分のニックネームで起動します</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat - プライベートチャット</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>相手が入力中の内容</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>ブザー!</translation>
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
        <translation>入力中の内容が、送信前に相手に表示されます</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>気分</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>アバター</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>相手のアバター</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>自分の気分 (未指定)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>相手の気分 (未指定)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>自分</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>相手</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>相手のアドレス</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>自分の気分 (%1)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>相手の気分 (%1)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat - 「%1」に連絡先を送信</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>選択した連絡先を追加</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>すべての連絡先を追加</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>選択した連絡先を戻す</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>すべての連絡先を戻す</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>送信する連絡先を選択してください</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>送信できる連絡先</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>送信できる連絡先はほかにありません</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>送信対象の連絡先</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>ここに移動した連絡先が送信されます</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>送信(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>ウィンドウに対応するページでマニュアルを開く</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>連絡先を検索 (一覧で文字を入力しても検索可能)</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>保存されている会話を表示</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>選択した連絡先のプライベートウィンドウを開く</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>確認後、選択した連絡先を削除</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>連絡先の検索を終了</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>メッセージを送信</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>改行</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>入力欄が空のとき: 直前のメッセージを呼び出す</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>絵文字を選択</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>ブザーを鳴らす (プライベートウィンドウ)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>検索、顔文字、絵文字を閉じる</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>ログ内を検索</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>選択範囲をコピー</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>文字を大きくする</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>文字を小さくする</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>文字を標準サイズに戻す</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>すべてのウィンドウ</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>メインウィンドウ</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>会話</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat - キーボードショートカット</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>ご存じですか?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>NIMB-Chat は MIT ライセンスのフリーソフトウェアです。ネットワーク上のほかの人にもどうぞお配りください。</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>起動時にヒントを表示する(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>次のヒント(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat - 転送</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>自分が提供しているもの (NIMB-Chat の実行中のみ)</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>自分が提供しているもの</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>提供しているものはありません。ファイルまたはフォルダーを会話にドロップするか、会話のクリップボタンを押してください。</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>提供の期限</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>24 時間</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>1 回取得されるまで</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>停止するまで</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>相手から提供されたもの</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>NIMB-Chat の起動後に提供されたファイルはありません。</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>保存(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>再開(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>フォルダーを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>このコンピューターには %1 を開くプログラムがありません。</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>すべて保存(&amp;L)...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>提供されていて未取得のものすべてを 1 つのフォルダーに保存します</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>すべて保存 (%1)(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>破棄(&amp;D)...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>ファイルの取得をやめ、受信済みの分を削除します</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>「%1」を破棄しますか? 受信済みの %2 はディスクから削除されます。</translation>
    </message>
</context>
</TS>
