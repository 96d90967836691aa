<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AddUser</name>
    <message>
        <source>Please fill all the fields</source>
        <translation>يرجى ملء جميع الحقول</translation>
    </message>
    <message>
        <source>You can't add yourself...</source>
        <translation>لا يمكنك إضافة نفسك...</translation>
    </message>
    <message>
        <source>IP Address already used by another user</source>
        <translation>عنوان IP يستخدمه مستخدم آخر بالفعل</translation>
    </message>
    <message>
        <source>This is not the address of one computer: everybody on the network hears what is sent there.</source>
        <translation>هذا ليس عنوان حاسوب واحد: كل من على الشبكة يتلقى ما يُرسل إليه.</translation>
    </message>
    <message>
        <source>This address cannot be kept: it marks the end of the stored list.</source>
        <translation>لا يمكن حفظ هذا العنوان: فهو يدل على نهاية القائمة المخزنة.</translation>
    </message>
    <message>
        <source>This is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>هذا ليس عنوانًا من قبيل 192.168.1.20: لا يمكن إرسال شيء إليه.</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>There is no camera.</source>
        <translation>لا توجد كاميرا.</translation>
    </message>
    <message>
        <source>The camera stopped: %1</source>
        <translation>توقفت الكاميرا: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The camera was unplugged.</source>
        <translation>فُصلت الكاميرا.</translation>
    </message>
</context>
<context>
    <name>Conference</name>
    <message>
        <source>%1 (you)</source>
        <translation>⁨%1⁩ (أنت)</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted here) - NIMB-Chat</source>
        <translation>المؤتمر رقم ⁨%1⁩ (مستضاف هنا) - NIMB-Chat</translation>
    </message>
    <message>
        <source>Conference #%1 (Hosted by '%2') - NIMB-Chat</source>
        <translation>المؤتمر رقم ⁨%1⁩ (يستضيفه «⁨%2⁩») - NIMB-Chat</translation>
    </message>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »</source>
        <translation>« برنامج NIMB-Chat [اليوم:⁨%1⁩ - الآن:⁨%2⁩] المؤتمر رقم ⁨%3⁩ جاهز »</translation>
    </message>
    <message>
        <source>Conference #%1</source>
        <translation>المؤتمر رقم ⁨%1⁩</translation>
    </message>
    <message>
        <source>Conference #%1 of %2</source>
        <translation>المؤتمر رقم ⁨%1⁩ لدى ⁨%2⁩</translation>
    </message>
    <message>
        <source>--- This conference is terminated.</source>
        <translation>--- انتهى هذا المؤتمر.</translation>
    </message>
    <message>
        <source>--- You removed %1 from the conference.</source>
        <translation>--- أخرجتَ ⁨%1⁩ من المؤتمر.</translation>
    </message>
    <message>
        <source>Closing that window will terminate the conference. Proceed?</source>
        <translation>إغلاق هذه النافذة سينهي المؤتمر. هل تريد المتابعة؟</translation>
    </message>
    <message>
        <source>Leave the conference?</source>
        <translation>هل تريد مغادرة المؤتمر؟</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>--- %1 joined the conference</source>
        <translation>--- انضم ⁨%1⁩ إلى المؤتمر</translation>
    </message>
    <message>
        <source>--- %1 left the conference.</source>
        <translation>--- غادر ⁨%1⁩ المؤتمر.</translation>
    </message>
    <message>
        <source>--- %1 refused to partecipate to conf</source>
        <translation>--- رفض ⁨%1⁩ المشاركة في المؤتمر</translation>
    </message>
</context>
<context>
    <name>ConferenceTable</name>
    <message>
        <source>Sorry, conf windows are over!!!</source>
        <translation>عذرًا، لم تعد هناك نوافذ متاحة لمؤتمرات أخرى!</translation>
    </message>
</context>
<context>
    <name>ConsoleCommands</name>
    <message>
        <source>No copy of NIMB-Chat runs with this profile.</source>
        <translation>لا يعمل NIMB-Chat بهذا الملف الشخصي.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs gives no answer.</source>
        <translation>لا يجيب NIMB-Chat قيد التشغيل.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>الأمر طويل جدًا.</translation>
    </message>
</context>
<context>
    <name>ContactCommands</name>
    <message>
        <source>&amp;Private Chat</source>
        <translation>محادثة &amp;خاصة</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>ت&amp;نبيه المستخدم</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>إ&amp;زالة المستخدم</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>إرسال &amp;جهات اتصال</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>&amp;دعوة المستخدم</translation>
    </message>
    <message>
        <source>Private chat with '%1'</source>
        <translation>محادثة خاصة مع «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Buzz '%1'</source>
        <translation>تنبيه «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Remove %1 users from the list</source>
        <translation>إزالة مستخدمين من القائمة (العدد: ⁨%1⁩)</translation>
    </message>
    <message>
        <source>Remove '%1' from the list</source>
        <translation>إزالة «⁨%1⁩» من القائمة</translation>
    </message>
    <message>
        <source>Send &amp;contacts to '%1'</source>
        <translation>إرسال &amp;جهات اتصال إلى «⁨%1⁩»</translation>
    </message>
    <message>
        <source>&amp;Net send message to '%1'</source>
        <translation>إرسال &amp;رسالة net send إلى «⁨%1⁩»</translation>
    </message>
    <message>
        <source>I&amp;nvite user '%1'</source>
        <translation>&amp;دعوة المستخدم «⁨%1⁩»</translation>
    </message>
    <message>
        <source>%1 (messages that wait to be read: %2)</source>
        <translation>⁨%1⁩ (رسائل تنتظر القراءة: ⁨%2⁩)</translation>
    </message>
    <message>
        <source>%1 on %2 (%3)</source>
        <translation>⁨%1⁩ على ⁨%2⁩ (⁨%3⁩)</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>المستخدم ⁨%1⁩ غير متصل: ما تكتبه لا يصل</translation>
    </message>
    <message>
        <source>whether %1 is there is being asked: no window opens before that is known</source>
        <translation>جارٍ السؤال عن وجود ⁨%1⁩: لن تُفتح النافذة قبل معرفة ذلك</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks, and shows you to your contacts</source>
        <translation>وجود ⁨%1⁩ غير مؤكد: زر «إعادة الفحص» يسأل عن ذلك ويُظهرك لجهات اتصالك</translation>
    </message>
    <message>
        <source>whether %1 is there is not known: "Rescan" asks</source>
        <translation>وجود ⁨%1⁩ غير مؤكد: زر «إعادة الفحص» يسأل عن ذلك</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?</source>
        <translation>هل تريد حقًا إزالة المستخدم «⁨%1⁩» على محطة العمل «⁨%2⁩» (⁨%3⁩)؟</translation>
    </message>
    <message>
        <source>Are you sure you want to remove these %1 users?</source>
        <translation>هل تريد حقًا إزالة هؤلاء المستخدمين (العدد: ⁨%1⁩)؟</translation>
    </message>
    <message>
        <source>... (%1 more)</source>
        <translation>... (و⁨%1⁩ غيرهم)</translation>
    </message>
    <message>
        <source>Please confirm user removal</source>
        <translation>تأكيد إزالة المستخدم</translation>
    </message>
    <message>
        <source>%1 contacts selected</source>
        <translation>جهات الاتصال المحددة: ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>ContactFile</name>
    <message>
        <source>"%1" is not the address of one computer</source>
        <translation>«⁨%1⁩» ليس عنوان حاسوب واحد</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>أحد الاسمين فارغ</translation>
    </message>
    <message>
        <source>%1 was there before</source>
        <translation>سبق ورود ⁨%1⁩</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>ليس مكتوبًا بترميز UTF-8</translation>
    </message>
    <message>
        <source>it must be: %1</source>
        <translation>يجب أن يكون: ⁨%1⁩</translation>
    </message>
    <message>
        <source>its quotation marks do not fit</source>
        <translation>علامات الاقتباس غير متطابقة</translation>
    </message>
    <message>
        <source>it has not three fields</source>
        <translation>لا يحتوي على ثلاثة حقول</translation>
    </message>
</context>
<context>
    <name>ContactImport</name>
    <message>
        <source>everybody on the network hears what is sent to %1</source>
        <translation>كل من على الشبكة يتلقى ما يُرسل إلى ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 means whoever says it</source>
        <translation>العنوان ⁨%1⁩ يعني الجهاز نفسه الذي يستخدمه</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>السطر ⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>; line %1: %2</source>
        <translation>؛ السطر ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>؛ ولا أخطاء أخرى</numerusform>
            <numerusform>؛ وخطأ آخر</numerusform>
            <numerusform>؛ وخطآن آخران</numerusform>
            <numerusform>؛ و%n أخطاء أخرى</numerusform>
            <numerusform>؛ و%n خطأً آخر</numerusform>
            <numerusform>؛ و%n خطأ آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. No contact was taken from this file.</source>
        <translation>⁨%1⁩. لم تُستورد أي جهة اتصال من هذا الملف.</translation>
    </message>
    <message>
        <source>contacts taken from %1: %2; there already: %3</source>
        <translation>جهات الاتصال المستوردة من ⁨%1⁩: ⁨%2⁩؛ الموجودة من قبل: ⁨%3⁩</translation>
    </message>
    <message>
        <source>; left out: your own address</source>
        <translation>؛ استُبعد عنوانك أنت</translation>
    </message>
    <message>
        <source>the new contacts</source>
        <translation>جهات الاتصال الجديدة</translation>
    </message>
</context>
<context>
    <name>ContactTransfer</name>
    <message>
        <source>contacts sent to %1: %2</source>
        <translation>جهات الاتصال المرسلة إلى ⁨%1⁩: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>Last message: %1 @ %2</source>
        <translation>آخر رسالة: ⁨%1⁩ @ ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>DesktopAutostart</name>
    <message>
        <source>the registry cannot be written</source>
        <translation>تتعذر الكتابة في السجل</translation>
    </message>
</context>
<context>
    <name>DialogOpener</name>
    <message>
        <source>Contacts (*.csv)</source>
        <translation>جهات الاتصال (*.csv)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>جميع الملفات (*.*)</translation>
    </message>
    <message>
        <source>it is too large for a list of contacts</source>
        <translation>حجمه أكبر من أن يكون قائمة جهات اتصال</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>تتعذر قراءة ‎⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>تتعذر الكتابة إلى ‎⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>contacts in %1: %2</source>
        <translation>جهات الاتصال في ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>contacts in %1: %2; left out, for nobody else could reach them: %3</source>
        <translation>جهات الاتصال في ⁨%1⁩: ⁨%2⁩؛ المستبعدة لأنه لا يمكن لأحد غيرك الوصول إليها: ⁨%3⁩</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>A datagram is on its way to yourself.</source>
        <translation>حزمة بيانات في طريقها إلى عنوانك.</translation>
    </message>
    <message>
        <source>Looking for a firewall.</source>
        <translation>جارٍ البحث عن جدار حماية.</translation>
    </message>
    <message>
        <source>%1 is no contact any more.</source>
        <translation>لم يعد ⁨%1⁩ من جهات الاتصال.</translation>
    </message>
    <message>
        <source>%1 is no address such as 192.168.1.20: nothing can be sent there.</source>
        <translation>إن ⁨%1⁩ ليس عنوانًا من قبيل 192.168.1.20: لا يمكن إرسال شيء إليه.</translation>
    </message>
    <message>
        <source>Remove the contact and add it with its address.</source>
        <translation>أزل جهة الاتصال وأضفها بعنوانها.</translation>
    </message>
    <message>
        <source>%1 was not asked: you are invisible, and the question would show that you are here.</source>
        <translation>لم يُسأل ⁨%1⁩: أنت غير مرئي، والسؤال سيكشف وجودك هنا.</translation>
    </message>
    <message>
        <source>Choose another state first.</source>
        <translation>اختر حالة أخرى أولًا.</translation>
    </message>
    <message>
        <source>No network of this computer leads to %1.</source>
        <translation>لا توصل أي شبكة في هذا الحاسوب إلى ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Connect the network on which the contact is.</source>
        <translation>اتصل بالشبكة التي توجد عليها جهة الاتصال.</translation>
    </message>
    <message>
        <source>%1 was not asked, for nothing listens for an answer.</source>
        <translation>لم يُسأل ⁨%1⁩ لأنه لا شيء يستمع إلى الإجابة.</translation>
    </message>
    <message>
        <source>See to the port first.</source>
        <translation>عالج مشكلة المنفذ أولًا.</translation>
    </message>
    <message>
        <source>Waiting for an answer of %1.</source>
        <translation>في انتظار إجابة من ⁨%1⁩.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>NIMB-Chat was told to stay on this computer: it uses the loopback network.</source>
        <translation>طُلب من NIMB-Chat البقاء على هذا الحاسوب: وهو يستخدم شبكة الاسترجاع (loopback).</translation>
    </message>
    <message>
        <source>No network with an IPv4 address is connected.</source>
        <translation>لا توجد شبكة متصلة لها عنوان IPv4.</translation>
    </message>
    <message>
        <source>Plug in the cable, or join the wireless network that the others use.</source>
        <translation>وصّل الكبل، أو انضم إلى الشبكة اللاسلكية التي يستخدمها الآخرون.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>متصل بالعنوان ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Your address is %1, and no network card of this computer has it.</source>
        <translation>عنوانك هو ⁨%1⁩، ولا تحمله أي بطاقة شبكة في هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Correct NIMBCHAT_ADDRESS, or connect that network.</source>
        <translation>صحّح قيمة NIMBCHAT_ADDRESS، أو اتصل بتلك الشبكة.</translation>
    </message>
    <message>
        <source>Connect a network, or choose another own address in Tools, Options.</source>
        <translation>اتصل بشبكة، أو اختر عنوانًا آخر لك من «أدوات &gt; خيارات».</translation>
    </message>
    <message>
        <source>Your address is %1 of the card %2, on which nobody can be found: it leads to a single machine, or to what runs inside this one.</source>
        <translation>عنوانك هو ⁨%1⁩ على البطاقة ⁨%2⁩، ولا يمكن العثور على أحد عليها: فهي توصل إلى جهاز واحد فقط، أو إلى ما يعمل داخل هذا الجهاز.</translation>
    </message>
    <message>
        <source>If the others are on another network, correct NIMBCHAT_ADDRESS.</source>
        <translation>إذا كان الآخرون على شبكة أخرى، فصحّح قيمة NIMBCHAT_ADDRESS.</translation>
    </message>
    <message>
        <source>If the others are on another network, choose its card as your own address in Tools, Options.</source>
        <translation>إذا كان الآخرون على شبكة أخرى، فاختر عنوان بطاقتها من «أدوات &gt; خيارات».</translation>
    </message>
    <message>
        <source>Your address is %1, which only programs on this computer can reach.</source>
        <translation>عنوانك هو ⁨%1⁩، ولا يمكن أن تصل إليه إلا البرامج التي على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Start NIMB-Chat without NIMBCHAT_ADDRESS to talk to other computers.</source>
        <translation>شغّل NIMB-Chat من دون NIMBCHAT_ADDRESS للتحدث مع حواسيب أخرى.</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 of the card %3.</source>
        <translation>بطاقة الشبكة ⁨%1⁩، التي اختير عنوانها في الخيارات ليكون عنوانك، غير متصلة؛ عنوانك هو ⁨%2⁩ على البطاقة ⁨%3⁩.</translation>
    </message>
    <message>
        <source>Connect that card, or choose another own address in Tools, Options.</source>
        <translation>وصّل تلك البطاقة، أو اختر عنوانًا آخر لك من «أدوات &gt; خيارات».</translation>
    </message>
    <message>
        <source>Your address is %1, of the card %2.</source>
        <translation>عنوانك هو ⁨%1⁩ على البطاقة ⁨%2⁩.</translation>
    </message>
    <message>
        <source>NIMB-Chat listens on UDP port %1.</source>
        <translation>يستمع NIMB-Chat إلى منفذ UDP ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1.</source>
        <translation>لا يسمح النظام لبرنامج NIMB-Chat باستخدام المنفذ ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Choose a port above 1023 in Tools, Options, the same as everybody else's.</source>
        <translation>اختر من «أدوات &gt; خيارات» منفذًا أعلى من 1023، هو نفسه لدى الجميع.</translation>
    </message>
    <message>
        <source>Nothing listens: this machine does not have your address.</source>
        <translation>لا شيء يستمع: هذا الجهاز ليس له عنوانك.</translation>
    </message>
    <message>
        <source>Connect the network that has it; NIMB-Chat tries again every 5 seconds.</source>
        <translation>اتصل بالشبكة التي لها هذا العنوان؛ يعيد NIMB-Chat المحاولة كل 5 ثوانٍ.</translation>
    </message>
    <message>
        <source>Port %1 is used by the program %2 (process %3).</source>
        <translation>المنفذ ⁨%1⁩ يستخدمه البرنامج ⁨%2⁩ (العملية ⁨%3⁩).</translation>
    </message>
    <message>
        <source>Close that program; NIMB-Chat tries again every 5 seconds.</source>
        <translation>أغلق ذلك البرنامج؛ يعيد NIMB-Chat المحاولة كل 5 ثوانٍ.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program.</source>
        <translation>المنفذ ⁨%1⁩ يستخدمه برنامج آخر.</translation>
    </message>
    <message>
        <source>"sudo ss -ulpn sport = :%1" shows which one.</source>
        <translation>يبيّن الأمر «sudo ss -ulpn sport = :⁨%1⁩» أيَّ برنامج هو.</translation>
    </message>
    <message>
        <source>NIMB-Chat does not listen on port %1.</source>
        <translation>لا يستمع NIMB-Chat إلى المنفذ ⁨%1⁩.</translation>
    </message>
    <message>
        <source>NIMB-Chat tries again every 5 seconds; if that does not help, start it anew.</source>
        <translation>يعيد NIMB-Chat المحاولة كل 5 ثوانٍ؛ إن لم ينفع ذلك فأعد تشغيله.</translation>
    </message>
    <message>
        <source>UDP port %1 is free for NIMB-Chat, which does not run.</source>
        <translation>منفذ UDP ⁨%1⁩ متاح لبرنامج NIMB-Chat، وهو لا يعمل الآن.</translation>
    </message>
    <message>
        <source>NIMB-Chat runs (process %1) and listens on UDP port %2.</source>
        <translation>يعمل NIMB-Chat (العملية ⁨%1⁩) ويستمع إلى منفذ UDP ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The system gives no room for waiting datagrams.</source>
        <translation>لا يوفر النظام مساحة لحزم البيانات المنتظرة.</translation>
    </message>
    <message>
        <source>The system keeps only %1 KiB of waiting datagrams: when many answer at once, some are lost.</source>
        <translation>لا يحتفظ النظام إلا بمقدار ⁨%1⁩ كيبيبايت من حزم البيانات المنتظرة: عندما يجيب كثيرون معًا يُفقد بعضها.</translation>
    </message>
    <message>
        <source>"sudo sysctl -w net.core.rmem_max=4194304" lets it keep more.</source>
        <translation>يتيح له الأمر «sudo sysctl -w net.core.rmem_max=4194304» الاحتفاظ بالمزيد.</translation>
    </message>
    <message>
        <source>The system keeps %1 KiB of waiting datagrams.</source>
        <translation>يحتفظ النظام بمقدار ⁨%1⁩ كيبيبايت من حزم البيانات المنتظرة.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, came back.</source>
        <translation>عادت حزمة البيانات المرسلة إلى عنوانك ⁨%1⁩.</translation>
    </message>
    <message>
        <source>A datagram to %1, yourself, did not come back within a second.</source>
        <translation>لم تعد حزمة البيانات المرسلة إلى عنوانك ⁨%1⁩ خلال ثانية.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps even its own datagrams out, or the address is not its own.</source>
        <translation>جدار حماية على هذا الحاسوب يحجب حتى حزم الحاسوب نفسه، أو أن العنوان ليس عنوانه.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for nothing listens for it.</source>
        <translation>لم تُرسل حزمة بيانات إلى عنوانك لأنه لا شيء يستمع إليها.</translation>
    </message>
    <message>
        <source>No datagram was sent to yourself, for the copy that runs would get it: its own network doctor tries it.</source>
        <translation>لم تُرسل حزمة بيانات إلى عنوانك لأن النسخة العاملة هي التي ستتلقاها: تشخيص الشبكة فيها يجرّب ذلك.</translation>
    </message>
    <message>
        <source>Everybody on this computer can be asked.</source>
        <translation>يمكن سؤال الجميع على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>There is no network on which everybody can be asked.</source>
        <translation>لا توجد شبكة يمكن سؤال الجميع عليها.</translation>
    </message>
    <message>
        <source>Add the others by their addresses: Users, Add offline user.</source>
        <translation>أضف الآخرين بعناوينهم: «المستخدمون &gt; إضافة مستخدم غير متصل».</translation>
    </message>
    <message>
        <source>A question to everybody leaves: %1.</source>
        <translation>يخرج السؤال الموجَّه إلى الجميع: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The system refuses to send to everybody: %1.</source>
        <translation>يرفض النظام الإرسال إلى الجميع: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>A firewall on this computer keeps it in; let UDP out to that address.</source>
        <translation>جدار حماية على هذا الحاسوب يحجب خروجه؛ اسمح بخروج UDP إلى ذلك العنوان.</translation>
    </message>
    <message>
        <source>No firewall is seen on this computer.</source>
        <translation>لم يُكتشف جدار حماية على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in.</source>
        <translation>جدار الحماية ⁨%1⁩ مفعّل ويسمح بمنفذ UDP ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The firewall %1 is on and keeps UDP port %2 out: nobody reaches you.</source>
        <translation>جدار الحماية ⁨%1⁩ مفعّل ويحجب منفذ UDP ⁨%2⁩: لا أحد يصل إليك.</translation>
    </message>
    <message>
        <source>This opens the port: %1</source>
        <translation>هذا يفتح المنفذ: ‎⁨%1⁩</translation>
    </message>
    <message>
        <source>The firewall %1 is on and lets UDP port %2 in for some and not for others, as it seems.</source>
        <translation>جدار الحماية ⁨%1⁩ مفعّل، ويبدو أنه يسمح بمنفذ UDP ⁨%2⁩ لبعضهم دون غيرهم.</translation>
    </message>
    <message>
        <source>If others do not reach you, this opens the port for everybody: %1</source>
        <translation>إذا كان الآخرون لا يصلون إليك، فهذا يفتح المنفذ للجميع: ‎⁨%1⁩</translation>
    </message>
    <message>
        <source>Only the administrator may see whether a firewall keeps UDP port %1 out.</source>
        <translation>لا يُسمح إلا للمسؤول بمعرفة هل يحجب جدار حماية منفذ UDP ⁨%1⁩.</translation>
    </message>
    <message>
        <source>"sudo nimb-chatctl doctor" tells.</source>
        <translation>يبيّن ذلك الأمر «sudo nimb-chatctl doctor».</translation>
    </message>
    <message>
        <source>This computer may have a firewall, and no program is here that shows all of its rules.</source>
        <translation>قد يكون على هذا الحاسوب جدار حماية، ولا يوجد هنا برنامج يعرض جميع قواعده.</translation>
    </message>
    <message>
        <source>"sudo nft list ruleset" and "sudo iptables-legacy -S" show them, of the packages nftables and iptables.</source>
        <translation>يعرضها الأمران «sudo nft list ruleset» و«sudo iptables-legacy -S» من الحزمتين nftables وiptables.</translation>
    </message>
    <message>
        <source>The firewall %1 is on; only the administrator may see whether it lets UDP port %2 in.</source>
        <translation>جدار الحماية ⁨%1⁩ مفعّل؛ ولا يُسمح إلا للمسؤول بمعرفة هل يسمح بمنفذ UDP ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network; your address is the one that was chosen.</source>
        <translation>البطاقتان ⁨%1⁩ و⁨%2⁩ على الشبكة نفسها؛ وعنوانك هو العنوان المختار.</translation>
    </message>
    <message>
        <source>The cards %1 and %2 are on the same network: others may see you under either address.</source>
        <translation>البطاقتان ⁨%1⁩ و⁨%2⁩ على الشبكة نفسها: قد يراك الآخرون بأيٍّ من العنوانين.</translation>
    </message>
    <message>
        <source>Turn one of them off, or choose one as your own address in Tools, Options.</source>
        <translation>أوقف إحداهما، أو اختر عنوان إحداهما من «أدوات &gt; خيارات».</translation>
    </message>
    <message>
        <source>Your address is that of %1, a VPN or another line to a single machine.</source>
        <translation>عنوانك هو عنوان ⁨%1⁩، وهي شبكة VPN أو خط آخر إلى جهاز واحد.</translation>
    </message>
    <message>
        <source>If the others are on the local network, choose its card as your own address in Tools, Options.</source>
        <translation>إذا كان الآخرون على الشبكة المحلية، فاختر عنوان بطاقتها من «أدوات &gt; خيارات».</translation>
    </message>
    <message>
        <source>A VPN is up (%1); your address is not on it.</source>
        <translation>توجد شبكة VPN عاملة (⁨%1⁩)؛ وعنوانك ليس عليها.</translation>
    </message>
    <message>
        <source>There is no VPN, and no network has two cards of this computer.</source>
        <translation>لا توجد شبكة VPN، ولا شبكة عليها بطاقتان من هذا الحاسوب.</translation>
    </message>
    <message>
        <source>%1 answered after %2 ms.</source>
        <translation>أجاب ⁨%1⁩ بعد ⁨%2⁩ مللي ثانية.</translation>
    </message>
    <message>
        <source>%1 did not answer, but the computer at %2 is there, or was a moment ago.</source>
        <translation>لم يجب ⁨%1⁩، لكن الحاسوب ذا العنوان ⁨%2⁩ موجود، أو كان موجودًا قبل لحظات.</translation>
    </message>
    <message>
        <source>A firewall there may keep UDP out, NIMB-Chat may not run there or its user may be invisible, or that copy does not know you yet: let both sides use Users, Find everybody here. Run the network doctor there as well.</source>
        <translation>قد يكون هناك جدار حماية يحجب UDP، أو أن NIMB-Chat لا يعمل هناك، أو أن مستخدمه غير مرئي، أو أن تلك النسخة لا تعرفك بعد: ليستخدم الطرفان «المستخدمون &gt; البحث عن الجميع هنا». وشغّل تشخيص الشبكة هناك أيضًا.</translation>
    </message>
    <message>
        <source>%1 did not answer, and no computer on your network has the address %2.</source>
        <translation>لم يجب ⁨%1⁩، ولا يوجد على شبكتك حاسوب له العنوان ⁨%2⁩.</translation>
    </message>
    <message>
        <source>It is off, it has another address by now, it is on another network, or the access point keeps its machines apart (client isolation).</source>
        <translation>قد يكون مطفأً، أو تغيّر عنوانه، أو هو على شبكة أخرى، أو أن نقطة الوصول تعزل أجهزتها بعضها عن بعض (client isolation).</translation>
    </message>
    <message>
        <source>%1 did not answer. The address %2 is on another network, behind a router or at the other end of a tunnel.</source>
        <translation>لم يجب ⁨%1⁩. العنوان ⁨%2⁩ على شبكة أخرى، خلف موجّه أو في الطرف الآخر من نفق.</translation>
    </message>
    <message>
        <source>What leads there must let UDP through in both directions; and what may be wrong on one network may be wrong there: a firewall, a copy that does not run, a user who is invisible.</source>
        <translation>يجب أن يسمح ما يوصل إلى هناك بمرور UDP في الاتجاهين؛ وما قد يحدث من خلل على شبكة واحدة قد يحدث هناك أيضًا: جدار حماية، أو نسخة لا تعمل، أو مستخدم غير مرئي.</translation>
    </message>
    <message>
        <source>%1 did not answer. The way to %2 is that of your address %3, but the options name the card %4, whose address %5 may not be reached from there.</source>
        <translation>لم يجب ⁨%1⁩. الطريق إلى ⁨%2⁩ يمر بعنوانك ⁨%3⁩، لكن الخيارات تحدد البطاقة ⁨%4⁩، وقد لا يمكن الوصول من هناك إلى عنوانها ⁨%5⁩.</translation>
    </message>
    <message>
        <source>Choose "automatic" or the card of that network as your own address in Tools, Options.</source>
        <translation>اختر «تلقائي» أو عنوان بطاقة تلك الشبكة من «أدوات &gt; خيارات».</translation>
    </message>
    <message>
        <source>private message</source>
        <translation>رسالة خاصة</translation>
    </message>
    <message>
        <source>conference message</source>
        <translation>رسالة مؤتمر</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>ليس أمرًا</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>أمر غير معروف</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>غير مكتمل</translation>
    </message>
    <message>
        <source>[...]</source>
        <translation>[...]</translation>
    </message>
    <message>
        <source>[fine]</source>
        <translation>[سليم]</translation>
    </message>
    <message>
        <source>[doubtful]</source>
        <translation>[مشكوك فيه]</translation>
    </message>
    <message>
        <source>[WRONG]</source>
        <translation>[خطأ]</translation>
    </message>
    <message>
        <source>in</source>
        <translation>وارد</translation>
    </message>
    <message>
        <source>out</source>
        <translation>صادر</translation>
    </message>
    <message>
        <source>Dropped since the start:</source>
        <translation>المُهمَل منذ البدء:</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>The latest datagrams:</source>
        <translation>أحدث حزم البيانات:</translation>
    </message>
</context>
<context>
    <name>DropCounts</name>
    <message>
        <source>From addresses that are no contacts: %1</source>
        <translation>من عناوين ليست جهات اتصال: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Incomplete commands: %1</source>
        <translation>أوامر غير مكتملة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Commands that nothing here takes: %1</source>
        <translation>أوامر لا يقبلها شيء هنا: ⁨%1⁩</translation>
    </message>
    <message>
        <source>For private windows that are not open: %1</source>
        <translation>لنوافذ خاصة غير مفتوحة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>For conferences that are not there, or not to be had so: %1</source>
        <translation>لمؤتمرات غير موجودة، أو غير مسموح بها لمرسلها: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Addresses that cannot become contacts: %1</source>
        <translation>عناوين لا يمكن أن تصبح جهات اتصال: ⁨%1⁩</translation>
    </message>
    <message>
        <source>New contacts while the list was full: %1</source>
        <translation>جهات اتصال جديدة وصلت والقائمة ممتلئة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Messages while too many waited to be read: %1</source>
        <translation>رسائل وصلت وعدد كبير ينتظر القراءة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Invitations while too many waited: %1</source>
        <translation>دعوات وصلت وعدد كبير في الانتظار: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Avatars while those of too many strangers were kept: %1</source>
        <translation>صور رمزية وصلت وصور كثيرة لغرباء محفوظة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Contacts that made room in a full list: %1</source>
        <translation>جهات اتصال أُزيلت لإفساح مكان في قائمة ممتلئة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Avatars and lists asked for or sent too often: %1</source>
        <translation>صور رمزية وقوائم طُلبت أو أُرسلت أكثر مما ينبغي: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Datagrams that could not be sent: %1</source>
        <translation>حزم بيانات تعذر إرسالها: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Datagrams lost before they could be read: %1</source>
        <translation>حزم بيانات فُقدت قبل التمكن من قراءتها: ⁨%1⁩</translation>
    </message>
    <message>
        <source>More than could wait, of the loudest senders: %1</source>
        <translation>ما زاد على سعة الانتظار من أكثر المرسلين إرسالًا: ⁨%1⁩</translation>
    </message>
    <message>
        <source>of them from %1: %2</source>
        <translation>منها من ⁨%1⁩: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>EmojiTable</name>
    <message>
        <source>Smileys</source>
        <translation>الوجوه الضاحكة</translation>
    </message>
    <message>
        <source>People</source>
        <translation>الأشخاص</translation>
    </message>
    <message>
        <source>Animals and nature</source>
        <translation>الحيوانات والطبيعة</translation>
    </message>
    <message>
        <source>Food and drink</source>
        <translation>الطعام والشراب</translation>
    </message>
    <message>
        <source>Travel and places</source>
        <translation>السفر والأماكن</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>الأنشطة</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>الأشياء</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>الرموز</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>الأعلام</translation>
    </message>
</context>
<context>
    <name>EmoticonFace</name>
    <message>
        <source>laughing face</source>
        <translation>وجه ضاحك</translation>
    </message>
    <message>
        <source>crying face</source>
        <translation>وجه باكٍ</translation>
    </message>
    <message>
        <source>smiling face</source>
        <translation>وجه مبتسم</translation>
    </message>
    <message>
        <source>sad face</source>
        <translation>وجه حزين</translation>
    </message>
    <message>
        <source>neutral face</source>
        <translation>وجه محايد</translation>
    </message>
    <message>
        <source>face with tongue out</source>
        <translation>وجه يُخرج لسانه</translation>
    </message>
    <message>
        <source>winking face</source>
        <translation>وجه غامز</translation>
    </message>
    <message>
        <source>winking face with tongue out</source>
        <translation>وجه غامز يُخرج لسانه</translation>
    </message>
    <message>
        <source>grinning face</source>
        <translation>وجه بابتسامة عريضة</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Choose a folder with pictures</source>
        <translation>اختيار مجلد صور</translation>
    </message>
    <message>
        <source>Choose a folder to send</source>
        <translation>اختيار مجلد لإرساله</translation>
    </message>
    <message>
        <source>Choose a folder to save in</source>
        <translation>اختيار مجلد للحفظ فيه</translation>
    </message>
    <message>
        <source>Choose files to send</source>
        <translation>اختيار ملفات لإرسالها</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>إعداد الصفحة</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>%1 has changed since it was offered, so its transfer has ended.</source>
        <translation>تغيّر ⁨%1⁩ منذ عرضه، لذلك انتهى نقله.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>تتعذر قراءة ⁨%1⁩.</translation>
    </message>
    <message>
        <source>%1 holds too many files to be sent as one.</source>
        <translation>يحتوي ⁨%1⁩ على ملفات أكثر من أن تُرسل دفعة واحدة.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it cannot be read to its end.</source>
        <translation>يتعذر إرسال ⁨%1⁩: لا يمكن قراءته حتى نهايته.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>⁨%1⁩ و⁨%2⁩ غيرها</translation>
    </message>
    <message>
        <source>%1 left out of %2: %3. Links are not followed, and what cannot be read is not sent.</source>
        <translation>عدد ما استُبعد من ⁨%2⁩: ⁨%1⁩ (⁨%3⁩). لا تُتبع الروابط، وما تتعذر قراءته لا يُرسل.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: it is no file or folder that can be read.</source>
        <translation>يتعذر إرسال ⁨%1⁩: ليس ملفًا أو مجلدًا يمكن قراءته.</translation>
    </message>
</context>
<context>
    <name>FolderSource</name>
    <message>
        <source>There is no picture to show in "%1".</source>
        <translation>لا توجد صورة يمكن عرضها في «‎⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>GoodCopy</name>
    <message>
        <source>The settings are empty.</source>
        <translation>الإعدادات فارغة.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2. Is NIMB-Chat to go on with that copy? What is not used is kept under another name.</source>
        <translation>توجد نسخة من الإعدادات حُفظت في ⁨%1⁩ الساعة ⁨%2⁩. هل يتابع NIMB-Chat بهذه النسخة؟ ما لا يُستخدم يُحتفظ به باسم آخر.</translation>
    </message>
    <message>
        <source>There is a copy of the settings, saved on %1 at %2; NIMB-Chat offers it when it is started without a nickname.</source>
        <translation>توجد نسخة من الإعدادات حُفظت في ⁨%1⁩ الساعة ⁨%2⁩؛ يعرضها NIMB-Chat عند تشغيله من دون اسم مستعار.</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>The history was damaged, so a new one has been begun; %1 messages that could still be read went into it. The old file is %2.</source>
        <translation>كانت المحفوظات تالفة، فأُنشئت محفوظات جديدة؛ عدد الرسائل التي أمكنت قراءتها ونُقلت إليها: ⁨%1⁩. الملف القديم هو ‎⁨%2⁩.</translation>
    </message>
    <message>
        <source>a newer version of NIMB-Chat has written it</source>
        <translation>كُتب بإصدار أحدث من NIMB-Chat</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>The history in %1 cannot be used now (%2); what was kept before is unchanged.</source>
        <translation>لا يمكن استخدام المحفوظات في ‎⁨%1⁩ الآن (⁨%2⁩)؛ ما حُفظ من قبل لم يتغير.</translation>
    </message>
    <message>
        <source>The history in %1 has been removed or replaced while NIMB-Chat runs: what is said from now on goes into the one that is there now.</source>
        <translation>أُزيلت المحفوظات في ⁨%1⁩ أو استُبدلت أثناء تشغيل NIMB-Chat: ما يقال من الآن فصاعدًا يُحفظ في الملف الموجود هناك الآن.</translation>
    </message>
    <message>
        <source>The history in %1 can only be read now (%2): nothing more is kept until that changes.</source>
        <translation>لا يمكن الآن إلا قراءة المحفوظات في ‎⁨%1⁩ (⁨%2⁩): لن يُحفظ المزيد حتى يتغير ذلك.</translation>
    </message>
</context>
<context>
    <name>HttpFileFetcher</name>
    <message>
        <source>The folder %1 is not there any more.</source>
        <translation>لم يعد المجلد ‎⁨%1⁩ موجودًا.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>تتعذر الكتابة إلى ‎⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The connection to the sender broke off.</source>
        <translation>انقطع الاتصال بالمرسل.</translation>
    </message>
    <message>
        <source>The sender cannot be reached.</source>
        <translation>يتعذر الوصول إلى المرسل.</translation>
    </message>
    <message>
        <source>The sender broke off, or gave an answer that cannot be used.</source>
        <translation>قطع المرسل الإرسال، أو رد بما لا يمكن استخدامه.</translation>
    </message>
    <message>
        <source>The sender gave an answer that cannot be used.</source>
        <translation>رد المرسل بما لا يمكن استخدامه.</translation>
    </message>
    <message>
        <source>The sender offers it no longer.</source>
        <translation>لم يعد المرسل يعرضه.</translation>
    </message>
    <message>
        <source>It is too large to be shown.</source>
        <translation>حجمه أكبر من أن يُعرض.</translation>
    </message>
    <message>
        <source>What has come is not what was sent. It has been removed.</source>
        <translation>ما وصل ليس ما أُرسل، وقد أُزيل.</translation>
    </message>
    <message>
        <source>%1 cannot be renamed: %2.</source>
        <translation>تتعذر إعادة تسمية ‎⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>There is too little room in %1.</source>
        <translation>لا توجد مساحة كافية في ‎⁨%1⁩.</translation>
    </message>
    <message>
        <source>There is no room any more in %1.</source>
        <translation>لم تعد هناك مساحة في ‎⁨%1⁩.</translation>
    </message>
    <message>
        <source>%1 cannot be written on: %2.</source>
        <translation>تتعذر متابعة الكتابة إلى ‎⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 What has come is kept.</source>
        <translation>⁨%1⁩ ما وصل محفوظ.</translation>
    </message>
</context>
<context>
    <name>HttpFileServer</name>
    <message>
        <source>%1 cannot be sent: no port of this computer is free for it.</source>
        <translation>يتعذر إرسال ⁨%1⁩: لا يوجد في هذا الحاسوب منفذ متاح له.</translation>
    </message>
</context>
<context>
    <name>Invitations</name>
    <message>
        <source>%1 %2 - %3 invited you to a conference</source>
        <translation>⁨%1⁩ ⁨%2⁩ - دعاك ⁨%3⁩ إلى مؤتمر</translation>
    </message>
</context>
<context>
    <name>Invite</name>
    <message>
        <source>No user selected!</source>
        <translation>لم يُحدَّد أي مستخدم!</translation>
    </message>
</context>
<context>
    <name>LogMarks</name>
    <message>
        <source>%1 was not online: this has probably not arrived</source>
        <translation>لم يكن ⁨%1⁩ متصلًا: الأرجح أن هذا لم يصل</translation>
    </message>
    <message>
        <source>Waits until %1 is back</source>
        <translation>ينتظر عودة ⁨%1⁩</translation>
    </message>
    <message>
        <source>new</source>
        <translation>جديد</translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« برنامج NIMB-Chat [اليوم:⁨%1⁩ - الآن:⁨%2⁩] جاهز »</translation>
    </message>
    <message>
        <source>%1 is now called %2 ---</source>
        <translation>غيّر ⁨%1⁩ اسمه إلى ⁨%2⁩ ---</translation>
    </message>
    <message>
        <source>%1 went online ---</source>
        <translation>أصبح ⁨%1⁩ متصلًا ---</translation>
    </message>
    <message>
        <source>%1 has gone offline ---</source>
        <translation>أصبح ⁨%1⁩ غير متصل ---</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'  ---</source>
        <translation>أصبحت حالة ⁨%1⁩ «⁨%2⁩» ---</translation>
    </message>
    <message>
        <source>%1 buzzes you ---</source>
        <translation>ينبّهك ⁨%1⁩ ---</translation>
    </message>
    <message>
        <source>%1 sent you the contact '%2' (%3) ---</source>
        <translation>أرسل إليك ⁨%1⁩ جهة الاتصال «⁨%2⁩» (⁨%3⁩) ---</translation>
    </message>
    <message>
        <source>--- unsupported command received (%1) ---</source>
        <translation>--- ورد أمر غير مدعوم (⁨%1⁩) ---</translation>
    </message>
    <message>
        <source>--- garbage received  (%1) ---</source>
        <translation>--- وردت بيانات غير صالحة (⁨%1⁩) ---</translation>
    </message>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- لم ترد من ⁨%1⁩ حزم أخرى غير مفهومة ---</numerusform>
            <numerusform>--- وردت من ⁨%1⁩ حزمة أخرى غير مفهومة ---</numerusform>
            <numerusform>--- وردت من ⁨%1⁩ حزمتان أخريان غير مفهومتين ---</numerusform>
            <numerusform>--- وردت من ⁨%1⁩ %n حزم أخرى غير مفهومة ---</numerusform>
            <numerusform>--- وردت من ⁨%1⁩ %n حزمة أخرى غير مفهومة ---</numerusform>
            <numerusform>--- وردت من ⁨%1⁩ %n حزمة أخرى غير مفهومة ---</numerusform>
        </translation>
    </message>
    <message>
        <source>--- %1 ---</source>
        <translation>--- ⁨%1⁩ ---</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>حفظ الكل</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>خصائص</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>إعداد الصفحة</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>معاينة قبل الطباعة</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>طباعة</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Recent File 1</source>
        <translation>الملف الأخير 1</translation>
    </message>
    <message>
        <source>Recent File 2</source>
        <translation>الملف الأخير 2</translation>
    </message>
    <message>
        <source>Recent File 3</source>
        <translation>الملف الأخير 3</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>إن&amp;هاء</translation>
    </message>
    <message>
        <source>&amp;Network scan...</source>
        <translation>فحص ال&amp;شبكة...</translation>
    </message>
    <message>
        <source>&amp;Add offline user...</source>
        <translation>إ&amp;ضافة مستخدم غير متصل...</translation>
    </message>
    <message>
        <source>&amp;Find everybody here</source>
        <translation>البحث عن ال&amp;جميع هنا</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>الم&amp;حفوظات...</translation>
    </message>
    <message>
        <source>&amp;Import contacts...</source>
        <translation>ا&amp;ستيراد جهات الاتصال...</translation>
    </message>
    <message>
        <source>&amp;Export contacts...</source>
        <translation>&amp;تصدير جهات الاتصال...</translation>
    </message>
    <message>
        <source>Create &amp;new...</source>
        <translation>إنشاء مؤتمر &amp;جديد...</translation>
    </message>
    <message>
        <source>View &amp;invitations...</source>
        <translation>عرض الد&amp;عوات...</translation>
    </message>
    <message>
        <source>Show &amp;Log Window</source>
        <translation>إظهار نافذة ال&amp;سجل</translation>
    </message>
    <message>
        <source>&amp;Transfers...</source>
        <translation>&amp;عمليات النقل...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;خيارات...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>ال&amp;محتويات</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>ال&amp;بحث عن تعليمات حول...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;دليل الاستخدام</translation>
    </message>
    <message>
        <source>&amp;Tip of the day...</source>
        <translation>&amp;تلميح اليوم...</translation>
    </message>
    <message>
        <source>&amp;Network doctor...</source>
        <translation>تشخيص ال&amp;شبكة...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>ا&amp;ختصارات لوحة المفاتيح...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;حول</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Users</source>
        <translation>الم&amp;ستخدمون</translation>
    </message>
    <message>
        <source>&amp;Conference</source>
        <translation>المؤتم&amp;ر</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>أ&amp;دوات</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;تعليمات</translation>
    </message>
    <message>
        <source>&amp;Private Chat</source>
        <translation>محادثة &amp;خاصة</translation>
    </message>
    <message>
        <source>&amp;Buzz User</source>
        <translation>ت&amp;نبيه المستخدم</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;1</source>
        <translation>دعوة إلى المؤتمر رقم &amp;1</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;2</source>
        <translation>دعوة إلى المؤتمر رقم &amp;2</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;3</source>
        <translation>دعوة إلى المؤتمر رقم &amp;3</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;4</source>
        <translation>دعوة إلى المؤتمر رقم &amp;4</translation>
    </message>
    <message>
        <source>Invite to Conference #&amp;5</source>
        <translation>دعوة إلى المؤتمر رقم &amp;5</translation>
    </message>
    <message>
        <source>Send &amp;Contacts</source>
        <translation>إرسال &amp;جهات اتصال</translation>
    </message>
    <message>
        <source>Re&amp;move User</source>
        <translation>إ&amp;زالة المستخدم</translation>
    </message>
    <message>
        <source>I&amp;nvite user</source>
        <translation>&amp;دعوة المستخدم</translation>
    </message>
    <message>
        <source>M&amp;ute</source>
        <translation>&amp;كتم</translation>
    </message>
    <message>
        <source>&amp;Keep no history</source>
        <translation>&amp;عدم حفظ المحادثات</translation>
    </message>
    <message>
        <source>Send &amp;File...</source>
        <translation>إرسال &amp;ملف...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>NIMB-Chat: %1, %2</source>
        <translation>برنامج NIMB-Chat: ⁨%1⁩، ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1, %2 unread</source>
        <translation>⁨%1⁩، غير مقروءة: ⁨%2⁩</translation>
    </message>
    <message>
        <source>When NIMB-Chat last ended: %1</source>
        <translation>عند إنهاء NIMB-Chat آخر مرة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The stored personalized state "%1" begins with no picture digit and is left out, and gone for good once NIMB-Chat ends.</source>
        <translation>لا تبدأ الحالة المخصصة المخزنة «⁨%1⁩» برقم صورة، لذلك استُبعدت، وستُفقد نهائيًا عند إنهاء NIMB-Chat.</translation>
    </message>
    <message>
        <source>--- this desktop shows no tray icon: NIMB-Chat is minimised instead of hidden ---</source>
        <translation>--- لا يعرض سطح المكتب هذا أيقونة في علبة النظام: يُصغَّر NIMB-Chat بدلًا من إخفائه ---</translation>
    </message>
    <message>
        <source>Files that are still on their way would be broken off: %1. End NIMB-Chat all the same?</source>
        <translation>ستنقطع الملفات التي لا تزال قيد النقل: ⁨%1⁩. هل تريد إنهاء NIMB-Chat رغم ذلك؟</translation>
    </message>
    <message>
        <source>Messages that arrived while the program ended are lost: %1.</source>
        <translation>فُقدت الرسائل التي وصلت أثناء إنهاء البرنامج: ⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>Messenger</name>
    <message>
        <source>Messages that waited to be read when the program ended are lost: %1.</source>
        <translation>فُقدت الرسائل التي كانت تنتظر القراءة عند إنهاء البرنامج: ⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>Mood</name>
    <message>
        <source>Perfect white</source>
        <translation>أبيض ناصع</translation>
    </message>
    <message>
        <source>Quite white</source>
        <translation>أبيض إلى حد ما</translation>
    </message>
    <message>
        <source>Brightest green</source>
        <translation>أخضر ساطع</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>أخضر فاتح</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Almost green</source>
        <translation>أخضر تقريبًا</translation>
    </message>
    <message>
        <source>Quite green</source>
        <translation>أخضر إلى حد ما</translation>
    </message>
    <message>
        <source>Almost Yellow</source>
        <translation>أصفر تقريبًا</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Mainly Yellow</source>
        <translation>أصفر في معظمه</translation>
    </message>
    <message>
        <source>Quite red</source>
        <translation>أحمر إلى حد ما</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>أحمر داكن</translation>
    </message>
    <message>
        <source>Almost black</source>
        <translation>أسود تقريبًا</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>أسود</translation>
    </message>
</context>
<context>
    <name>NetSendRunner</name>
    <message>
        <source>The message was not sent: the program smbclient is not installed. Install the package smbclient (Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.</source>
        <translation>لم تُرسل الرسالة: البرنامج smbclient غير مثبت. ثبّت الحزمة smbclient (في Debian وUbuntu وArch) أو samba-client (في Fedora) ثم أعد الإرسال.</translation>
    </message>
    <message>
        <source>The message was not sent: no temporary file could be written (%1).</source>
        <translation>لم تُرسل الرسالة: تعذرت كتابة ملف مؤقت (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The message was not sent: %1 could not be started (%2).</source>
        <translation>لم تُرسل الرسالة: تعذر تشغيل ⁨%1⁩ (⁨%2⁩).</translation>
    </message>
    <message>
        <source>The message was not sent: this system has no "%1" command.</source>
        <translation>لم تُرسل الرسالة: لا يوجد في هذا النظام الأمر «⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>NetworkScan</name>
    <message>
        <source>"%1" is neither a name nor the address of a computer or a network, so nobody was asked.</source>
        <translation>إن «⁨%1⁩» ليس اسمًا ولا عنوانًا لحاسوب أو شبكة، لذلك لم يُسأل أحد.</translation>
    </message>
    <message>
        <source>No address was found for "%1", so nobody was asked.</source>
        <translation>لم يُعثر على عنوان لـ «⁨%1⁩»، لذلك لم يُسأل أحد.</translation>
    </message>
    <message>
        <source>%1 has too many addresses to be asked one by one: the largest range is /%2.</source>
        <translation>يحتوي ⁨%1⁩ على عناوين أكثر من أن تُسأل واحدًا واحدًا: أكبر نطاق هو ‎/⁨%2⁩.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 new messages</source>
        <translation>رسائل جديدة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>1 new message</source>
        <translation>رسالة جديدة واحدة</translation>
    </message>
    <message>
        <source>%1 invites you to a conference</source>
        <translation>يدعوك ⁨%1⁩ إلى مؤتمر</translation>
    </message>
    <message>
        <source>%1 buzzes you</source>
        <translation>ينبّهك ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>⁨%1⁩ · ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 in conference #%2</source>
        <translation>⁨%1⁩ في المؤتمر رقم ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>new messages</source>
        <translation>رسائل جديدة</translation>
    </message>
    <message>
        <source>new message</source>
        <translation>رسالة جديدة</translation>
    </message>
</context>
<context>
    <name>OptionValues</name>
    <message>
        <source>automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>⁨%1⁩ (غير متصلة)</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>يجب أن يكون المنفذ رقمًا من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>Starting with the desktop cannot be changed: %1</source>
        <translation>يتعذر تغيير البدء مع سطح المكتب: ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>OwnNetworks</name>
    <message>
        <source>No network</source>
        <translation>لا توجد شبكة</translation>
    </message>
    <message>
        <source>There is a network now: your address is %1</source>
        <translation>توجد شبكة الآن: عنوانك هو ⁨%1⁩</translation>
    </message>
    <message>
        <source>Your address is now %1</source>
        <translation>عنوانك الآن هو ⁨%1⁩</translation>
    </message>
    <message>
        <source>This computer has slept: your address is still %1</source>
        <translation>كان هذا الحاسوب في وضع السكون: لا يزال عنوانك ⁨%1⁩</translation>
    </message>
    <message>
        <source>The networks have changed: your address is still %1</source>
        <translation>تغيّرت الشبكات: لا يزال عنوانك ⁨%1⁩</translation>
    </message>
    <message>
        <source>The network card %1, whose address the options name as yours, is not connected; your address is %2 until it is.</source>
        <translation>بطاقة الشبكة ⁨%1⁩، التي اختير عنوانها في الخيارات ليكون عنوانك، غير متصلة؛ عنوانك هو ⁨%2⁩ إلى أن تتصل.</translation>
    </message>
    <message>
        <source>No network gives this computer an IPv4 address, so nobody can reach you. NIMB-Chat goes on as soon as one does.</source>
        <translation>لا تمنح أي شبكة هذا الحاسوب عنوان IPv4، لذلك لا يمكن لأحد الوصول إليك. سيتابع NIMB-Chat العمل فور حدوث ذلك.</translation>
    </message>
</context>
<context>
    <name>OwnState</name>
    <message>
        <source>Online</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>مشغول</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>غائب</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>غير مرئي</translation>
    </message>
    <message>
        <source> ... add a personalized state...</source>
        <translation> ... إضافة حالة مخصصة...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>الحالة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>AutoReply text (when Busy)</source>
        <translation>نص الرد التلقائي (عند الانشغال)</translation>
    </message>
    <message>
        <source>AutoReply text (when Away)</source>
        <translation>نص الرد التلقائي (عند الغياب)</translation>
    </message>
    <message>
        <source>You are invisible: rescanning shows you to your contacts</source>
        <translation>أنت غير مرئي: إعادة الفحص تُظهرك لجهات اتصالك</translation>
    </message>
    <message>
        <source>Ask all contacts whether they are there</source>
        <translation>سؤال جميع جهات الاتصال عن وجودها</translation>
    </message>
    <message>
        <source>Only %1 personalized states are kept: "%2" lasts until NIMB-Chat ends.</source>
        <translation>لا يُحفظ أكثر من ⁨%1⁩ من الحالات المخصصة: تبقى «⁨%2⁩» حتى إنهاء NIMB-Chat.</translation>
    </message>
</context>
<context>
    <name>PeerFeatures</name>
    <message>
        <source>%1 is buzzing you...</source>
        <translation>ينبّهك ⁨%1⁩ الآن...</translation>
    </message>
    <message>
        <source>%1 is typing a message...</source>
        <translation>يكتب ⁨%1⁩ رسالة...</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>This picture has more than 50 megapixels. Choose a smaller one.</source>
        <translation>هذه الصورة أكبر من 50 ميغابكسل. اختر صورة أصغر.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>هذه الصورة تالفة.</translation>
    </message>
    <message>
        <source>This picture is damaged, or far too large.</source>
        <translation>هذه الصورة تالفة، أو كبيرة جدًا.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>ليست هذه صورة يستطيع NIMB-Chat قراءتها.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened.</source>
        <translation>يتعذر فتح «‎⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>PortWatch</name>
    <message>
        <source>Port %1 is taken</source>
        <translation>المنفذ ⁨%1⁩ مشغول</translation>
    </message>
    <message>
        <source>No port %1</source>
        <translation>لا يتوفر المنفذ ⁨%1⁩</translation>
    </message>
    <message>
        <source>This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.</source>
        <translation>هذا الجهاز ليس له العنوان الذي طُلب من NIMB-Chat استخدامه، لذلك لا يمكن لأحد الوصول إليك عبر المنفذ ⁨%1⁩. صحّح قيمة NIMBCHAT_ADDRESS، أو اتصل بالشبكة: يعيد NIMB-Chat المحاولة كل 5 ثوانٍ.</translation>
    </message>
    <message>
        <source>The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.</source>
        <translation>لا يسمح النظام لبرنامج NIMB-Chat باستخدام المنفذ ⁨%1⁩، لذلك لا يمكن لأحد الوصول إليك. اختر منفذًا أعلى من 1023.</translation>
    </message>
    <message>
        <source>The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 seconds.</source>
        <translation>لا يمكن استخدام الشبكة عبر المنفذ ⁨%1⁩، لذلك لا يمكن لأحد الوصول إليك. يعيد NIMB-Chat المحاولة كل 5 ثوانٍ.</translation>
    </message>
    <message>
        <source>Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again every 5 seconds.</source>
        <translation>المنفذ ⁨%1⁩ يستخدمه برنامج آخر، لذلك لا يمكن لأحد الوصول إليك. أغلق ذلك البرنامج: يعيد NIMB-Chat المحاولة كل 5 ثوانٍ.</translation>
    </message>
    <message>
        <source>Port %1 is free now: you can be reached.</source>
        <translation>المنفذ ⁨%1⁩ متاح الآن: يمكن الوصول إليك.</translation>
    </message>
    <message>
        <source>You can be reached on port %1 again.</source>
        <translation>يمكن الوصول إليك مجددًا عبر المنفذ ⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>PresenceReceiver</name>
    <message>
        <source>%1 is online</source>
        <translation>أصبح ⁨%1⁩ متصلًا</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>أصبح ⁨%1⁩ غير متصل</translation>
    </message>
    <message>
        <source>%1 has gone offline</source>
        <translation>أصبح ⁨%1⁩ غير متصل</translation>
    </message>
    <message>
        <source>%1 changed his state to '%2'</source>
        <translation>أصبحت حالة ⁨%1⁩ «⁨%2⁩»</translation>
    </message>
</context>
<context>
    <name>PrivateChat</name>
    <message>
        <source>« NIMB-Chat [today:%1 - now:%2] Ready »</source>
        <translation>« برنامج NIMB-Chat [اليوم:⁨%1⁩ - الآن:⁨%2⁩] جاهز »</translation>
    </message>
    <message>
        <source>%1 is offline: files can be sent when %1 is back.</source>
        <translation>المستخدم ⁨%1⁩ غير متصل: يمكن إرسال الملفات عند عودة ⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>PrivateWindows</name>
    <message>
        <source>%1 - NIMB-Chat - Private Chat Window</source>
        <translation>⁨%1⁩ - NIMB-Chat - نافذة محادثة خاصة</translation>
    </message>
</context>
<context>
    <name>ProfileFolder</name>
    <message>
        <source>something that is no file stands in its place</source>
        <translation>يوجد في مكانه شيء ليس ملفًا</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>NIMBCHAT_ADDRESS is "%1", which is no IPv4 address; NIMB-Chat listens on every interface instead.</source>
        <translation>قيمة NIMBCHAT_ADDRESS هي «⁨%1⁩»، وهي ليست عنوان IPv4؛ لذلك يستمع NIMB-Chat إلى جميع الواجهات.</translation>
    </message>
    <message>
        <source>The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.</source>
        <translation>يمنح النظام ⁨%1⁩ كيبيبايت لحزم البيانات المنتظرة بدلًا من ⁨%2⁩ كيبيبايت: قد تُفقد الدفعات المفاجئة.</translation>
    </message>
</context>
<context>
    <name>RTFSubClass</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>لا يوجد على هذا الحاسوب برنامج يفتح ‎⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over ---</source>
        <translation>--- لم يتمكن NIMB-Chat من حفظ كل شيء عند إنهائه آخر مرة: استُعيد ما كان قد تغيّر ---</translation>
    </message>
    <message>
        <source>--- NIMB-Chat could not save everything when it last ended: what had changed is taken over, but for %1 damaged values ---</source>
        <translation>--- لم يتمكن NIMB-Chat من حفظ كل شيء عند إنهائه آخر مرة: استُعيد ما كان قد تغيّر، ما عدا القيم التالفة وعددها ⁨%1⁩ ---</translation>
    </message>
</context>
<context>
    <name>RemoteCommands</name>
    <message>
        <source>The copy of NIMB-Chat that runs knows no command "%1".</source>
        <translation>لا يعرف NIMB-Chat قيد التشغيل الأمر «⁨%1⁩».</translation>
    </message>
    <message>
        <source>No contact is called "%1" or has this address.</source>
        <translation>لا توجد جهة اتصال باسم «⁨%1⁩» أو بهذا العنوان.</translation>
    </message>
    <message>
        <source>Several contacts are called "%1": name one by its address (%2).</source>
        <translation>توجد عدة جهات اتصال باسم «⁨%1⁩»: حدّد واحدة بعنوانها (⁨%2⁩).</translation>
    </message>
    <message>
        <source>%1 is not online: nothing was sent.</source>
        <translation>⁨%1⁩ غير متصل: لم يُرسل شيء.</translation>
    </message>
    <message>
        <source>There is no text to be sent.</source>
        <translation>لا يوجد نص لإرساله.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>تتعذر قراءة ⁨%1⁩.</translation>
    </message>
    <message>
        <source>No text can stand beside "invisible".</source>
        <translation>لا يقبل «invisible» نصًا.</translation>
    </message>
    <message>
        <source>There is no state "%1": online, busy, away and invisible are.</source>
        <translation>لا توجد الحالة «⁨%1⁩»: المتاح online و busy و away و invisible.</translation>
    </message>
    <message>
        <source>A message holds %1 characters, and this one has more: nothing was sent.</source>
        <translation>تتسع الرسالة لعدد أحرف ⁨%1⁩، وفي هذه أكثر: لم يُرسل شيء.</translation>
    </message>
    <message>
        <source>The copy of NIMB-Chat that runs still asks for a nickname.</source>
        <translation>ما زال NIMB-Chat قيد التشغيل يطلب اسمًا مستعارًا.</translation>
    </message>
    <message>
        <source>The command is too long.</source>
        <translation>الأمر طويل جدًا.</translation>
    </message>
</context>
<context>
    <name>RemoteText</name>
    <message>
        <source>... (%1 more lines)</source>
        <translation>... (أسطر أخرى: ⁨%1⁩)</translation>
    </message>
    <message>
        <source>... (%1 more characters)</source>
        <translation>... (أحرف أخرى: ⁨%1⁩)</translation>
    </message>
</context>
<context>
    <name>SameMachine</name>
    <message>
        <source>%1 answers from %2 and from %3 and is shown once</source>
        <translation>يجيب ⁨%1⁩ من ⁨%2⁩ ومن ⁨%3⁩ ويُعرض مرة واحدة</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>No network of this computer leads to %1, so nobody was asked.</source>
        <translation>لا توصل أي شبكة في هذا الحاسوب إلى ⁨%1⁩، لذلك لم يُسأل أحد.</translation>
    </message>
    <message>
        <source>asking %1 who is there</source>
        <translation>جارٍ السؤال عن الموجودين: ⁨%1⁩</translation>
    </message>
    <message>
        <source>stopped when %1 of %2 had been asked</source>
        <translation>توقف البحث بعد سؤال ⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message>
        <source>nobody was asked: you are invisible, and the question would show everybody that you are there</source>
        <translation>لم يُسأل أحد: أنت غير مرئي، والسؤال سيكشف للجميع أنك موجود</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>nobody can be asked: no network is connected</source>
        <translation>لا يمكن سؤال أحد: لا توجد شبكة متصلة</translation>
    </message>
    <message>
        <source>everybody on %1</source>
        <translation>الجميع على ⁨%1⁩</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>هذا الحاسوب</translation>
    </message>
    <message>
        <source>nobody is asked any more: you are invisible</source>
        <translation>لن يُسأل أحد بعد الآن: أنت غير مرئي</translation>
    </message>
    <message>
        <source>%1 is your own address: nobody else hears what is sent there</source>
        <translation>العنوان ⁨%1⁩ هو عنوانك أنت: لا أحد غيرك يتلقى ما يُرسل إليه</translation>
    </message>
    <message>
        <source>nobody answered: no network is connected, so only this computer was asked</source>
        <translation>لم يجب أحد: لا توجد شبكة متصلة، فلم يُسأل إلا هذا الحاسوب</translation>
    </message>
    <message>
        <source>nobody answered: nobody may be there, a firewall may be in the way, or the network may keep its machines apart; %1 looks which</source>
        <translation>لم يجب أحد: قد لا يكون هناك أحد، أو يعترض جدار حماية الطريق، أو تعزل الشبكة أجهزتها بعضها عن بعض؛ لمعرفة السبب: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Help, Network doctor...</source>
        <translation>تعليمات &gt; تشخيص الشبكة...</translation>
    </message>
    <message>
        <source>%1 answered: %2; %3 new</source>
        <translation>عدد المجيبين ⁨%1⁩: ⁨%2⁩؛ الجدد: ⁨%3⁩</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The stored setting %1 cannot be "%2"; %3 is used instead.</source>
        <translation>لا يمكن أن يكون الإعداد المخزن ⁨%1⁩ هو «⁨%2⁩»؛ يُستخدم ⁨%3⁩ بدلًا منه.</translation>
    </message>
</context>
<context>
    <name>SiteDefaults</name>
    <message>
        <source>it is neither a section nor a key with its value</source>
        <translation>ليس قسمًا ولا مفتاحًا مع قيمته</translation>
    </message>
    <message>
        <source>there is no key "%1" in the section "%2"</source>
        <translation>لا يوجد مفتاح «⁨%1⁩» في القسم «⁨%2⁩»</translation>
    </message>
    <message>
        <source>%1: further lines that say nothing: %2</source>
        <translation>⁨%1⁩: أسطر أخرى لا تفيد شيئًا: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>⁨%1⁩، السطر ⁨%2⁩: ⁨%3⁩</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>تتعذر قراءة ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>الملف كبير جدًا</translation>
    </message>
    <message>
        <source>it is not written in UTF-8</source>
        <translation>الملف غير مكتوب بترميز UTF-8</translation>
    </message>
</context>
<context>
    <name>Sqlite</name>
    <message>
        <source>the disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>برنامج آخر يستخدم الملف</translation>
    </message>
    <message>
        <source>the file is damaged or holds something else</source>
        <translation>الملف تالف أو يحتوي على شيء آخر</translation>
    </message>
    <message>
        <source>memory has run out</source>
        <translation>نفدت الذاكرة</translation>
    </message>
    <message>
        <source>the file has been moved or replaced</source>
        <translation>نُقل الملف أو استُبدل</translation>
    </message>
    <message>
        <source>the file or its folder is read-only</source>
        <translation>الملف أو مجلده للقراءة فقط</translation>
    </message>
</context>
<context>
    <name>SqliteSettingsStore</name>
    <message>
        <source>The settings were not saved in %1 (%2), so what was changed since the last save is not kept; what was stored before is unchanged.</source>
        <translation>لم تُحفظ الإعدادات في ‎⁨%1⁩ (⁨%2⁩)، لذلك لم يُحتفظ بما تغيّر منذ آخر حفظ؛ ما خُزّن من قبل لم يتغير.</translation>
    </message>
    <message>
        <source>What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it can save.</source>
        <translation>لا يمكن الاحتفاظ بما تغيّر في ‎⁨%1⁩ الآن (⁨%2⁩)، لذلك سيُفقد إذا أُنهي NIMB-Chat قبل أن يتمكن من الحفظ.</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>يتعذر إنشاء مجلد الإعدادات ‎⁨%1⁩ (⁨%2⁩)، لذلك يبدأ البرنامج بقيمه الافتراضية ولا يحفظ أي إعدادات.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps no settings.</source>
        <translation>يتعذر إنشاء ملف الإعدادات ‎⁨%1⁩ (⁨%2⁩)، لذلك يبدأ البرنامج بقيمه الافتراضية ولا يحفظ أي إعدادات.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the file as it is.</source>
        <translation>تتعذر قراءة الإعدادات في ‎⁨%1⁩ (⁨%2⁩)، لذلك يبدأ البرنامج بقيمه الافتراضية ويترك الملف كما هو.</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.</source>
        <translation>يتعذر تغيير الإعدادات في ‎⁨%1⁩ (⁨%2⁩)، لذلك سيُنسى ما تغيّره عند إنهاء البرنامج.</translation>
    </message>
    <message>
        <source>they could not be read when the program started and would be lost</source>
        <translation>تعذرت قراءتها عند بدء البرنامج وكانت ستُفقد</translation>
    </message>
    <message>
        <source>The settings were damaged or empty when NIMB-Chat started before.</source>
        <translation>كانت الإعدادات تالفة أو فارغة عند بدء NIMB-Chat في المرة السابقة.</translation>
    </message>
    <message>
        <source>Some of the settings in %1 are damaged (%2), so they may differ from what was saved.</source>
        <translation>بعض الإعدادات في ‎⁨%1⁩ تالف (⁨%2⁩)، لذلك قد تختلف عما حُفظ.</translation>
    </message>
    <message>
        <source>The copy %1 cannot take the place of the settings (%2), so the program goes on without them.</source>
        <translation>لا يمكن أن تحل النسخة ‎⁨%1⁩ محل الإعدادات (⁨%2⁩)، لذلك يتابع البرنامج من دونها.</translation>
    </message>
    <message>
        <source>The settings were saved, but the copy of them in %1 could not be renewed (%2).</source>
        <translation>حُفظت الإعدادات، لكن تعذر تجديد نسختها في ‎⁨%1⁩ (⁨%2⁩).</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the Day - Tip #%1</source>
        <translation>تلميح اليوم - التلميح رقم ⁨%1⁩</translation>
    </message>
    <message>
        <source>There are no tips to show: the file TOTD.txt, which came with the program, is missing or cannot be read.</source>
        <translation>لا توجد تلميحات لعرضها: الملف TOTD.txt، الذي يأتي مع البرنامج، مفقود أو تتعذر قراءته.</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>تلميح اليوم</translation>
    </message>
</context>
<context>
    <name>nimb::AutoreplyFrame</name>
    <message>
        <source>AutoReply text</source>
        <translation>نص الرد التلقائي</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>nimb::ClearedBand</name>
    <message>
        <source>Bring it back</source>
        <translation>استرجاع</translation>
    </message>
</context>
<context>
    <name>nimb::ConsoleDoctor</name>
    <message>
        <source>The settings in %1 cannot be read, so those of a fresh copy are taken: %2</source>
        <translation>تتعذر قراءة الإعدادات في ‎⁨%1⁩، لذلك تُستخدم إعدادات نسخة جديدة: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>nimb::ContactFilter</name>
    <message>
        <source>Find a contact (Ctrl+K)</source>
        <translation>البحث عن جهة اتصال (Ctrl+K)</translation>
    </message>
    <message>
        <source>Find a contact</source>
        <translation>البحث عن جهة اتصال</translation>
    </message>
</context>
<context>
    <name>nimb::ContactList</name>
    <message>
        <source>online</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>مشغول</translation>
    </message>
    <message>
        <source>away</source>
        <translation>غائب</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>not yet known</source>
        <translation>غير معروف بعد</translation>
    </message>
    <message>
        <source>%1 to be sent</source>
        <translation>بانتظار الإرسال: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two things said of a contact</comment>
        <translation>⁨%1⁩، ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>غير مقروءة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>الاسم المستعار</translation>
    </message>
    <message>
        <source>Workstation</source>
        <translation>محطة العمل</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>PrivateWin</source>
        <translation>النافذة الخاصة</translation>
    </message>
    <message>
        <source>AvatarNum</source>
        <translation>رقم الصورة الرمزية</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>مكتوم</translation>
    </message>
</context>
<context>
    <name>nimb::ContactView</name>
    <message>
        <source>Nobody is in your list yet. One click asks everybody on your network.</source>
        <translation>لا أحد في قائمتك بعد. بنقرة واحدة تسأل جميع من على شبكتك.</translation>
    </message>
    <message>
        <source>Find everybody here</source>
        <translation>البحث عن الجميع هنا</translation>
    </message>
    <message>
        <source>Show everybody</source>
        <translation>إظهار الجميع</translation>
    </message>
    <message>
        <source>Nobody here is called "%1"</source>
        <translation>لا أحد هنا باسم «⁨%1⁩»</translation>
    </message>
</context>
<context>
    <name>nimb::ConversationPane</name>
    <message>
        <source>Conversation</source>
        <translation>المحادثة</translation>
    </message>
    <message>
        <source>The conversation was cleared.</source>
        <translation>مُسحت المحادثة.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ملفات</translation>
    </message>
    <message>
        <source>Emoticons</source>
        <translation>وجوه تعبيرية</translation>
    </message>
    <message>
        <source>Emoticons and emoji (Ctrl+.)</source>
        <translation>وجوه تعبيرية وإيموجي (Ctrl+.)</translation>
    </message>
    <message>
        <source>Date&amp;&amp;Time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Length of the message</source>
        <translation>طول الرسالة</translation>
    </message>
    <message>
        <source>What did not fit</source>
        <translation>ما لم تتسع له الرسالة</translation>
    </message>
    <message>
        <source>Conversations are not kept.</source>
        <translation>لا تُحفظ المحادثات.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>الرسالة</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Send files</source>
        <translation>إرسال ملفات</translation>
    </message>
    <message>
        <source>The rest is on the clipboard.</source>
        <translation>الباقي موجود في الحافظة.</translation>
    </message>
    <message>
        <source>Send Fil&amp;es...</source>
        <translation>إرسال &amp;ملفات...</translation>
    </message>
    <message>
        <source>Send a Fol&amp;der...</source>
        <translation>إرسال م&amp;جلد...</translation>
    </message>
    <message>
        <source>Picture %1.png</source>
        <translation>صورة ⁨%1⁩.png</translation>
    </message>
    <message>
        <source>The picture cannot be sent, for there is no room for it.</source>
        <translation>يتعذر إرسال الصورة لعدم وجود مساحة لها.</translation>
    </message>
    <message>
        <source>A picture was pasted (%1 × %2).</source>
        <translation>أُلصقت صورة (⁨%1⁩ × ⁨%2⁩).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message>
        <source>A message holds %1 characters; the last %2 of what you pasted did not fit.</source>
        <translation>سعة الرسالة ⁨%1⁩ من الأحرف؛ وعدد ما لم تتسع له من آخر ما ألصقته: ⁨%2⁩.</translation>
    </message>
    <message>
        <source> Keep them: %1</source>
        <comment>answers that can be clicked</comment>
        <translation> حفظها: ⁨%1⁩</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>لمدة سنة</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>دائمًا</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Send it</source>
        <translation>إرسالها</translation>
    </message>
    <message>
        <source>leave it</source>
        <translation>تركها</translation>
    </message>
    <message>
        <source>Send files; the arrow, or the Down key, has folders too</source>
        <translation>إرسال ملفات؛ ولإرسال مجلد استخدم السهم أو مفتاح السهم لأسفل</translation>
    </message>
    <message>
        <source>Earlier troubles with files: %1.</source>
        <translation>مشكلات سابقة في الملفات: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Copy the rest</source>
        <translation>نسخ الباقي</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotices</name>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>رد</translation>
    </message>
</context>
<context>
    <name>nimb::DesktopNotifications</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>إشعارات NIMBChat</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
    <message>
        <source>(%1 more)</source>
        <translation>(و⁨%1⁩ غيرها)</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiModel</name>
    <message>
        <source>Recently used</source>
        <translation>المستخدمة مؤخرًا</translation>
    </message>
</context>
<context>
    <name>nimb::EmojiPicker</name>
    <message>
        <source>Emoji</source>
        <translation>إيموجي</translation>
    </message>
    <message>
        <source>Find an emoji</source>
        <translation>البحث عن إيموجي</translation>
    </message>
    <message>
        <source>No emoji has such a name. Try another word.</source>
        <translation>لا يوجد إيموجي بهذا الاسم. جرّب كلمة أخرى.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>غير موجود</translation>
    </message>
</context>
<context>
    <name>nimb::EmoticonPicker</name>
    <message>
        <source>Emoticons</source>
        <translation>وجوه تعبيرية</translation>
    </message>
</context>
<context>
    <name>nimb::FileOffers</name>
    <message>
        <source>This copy of NIMB-Chat was built without the part that sends files.</source>
        <translation>بُنيت هذه النسخة من NIMB-Chat من دون الجزء الذي يرسل الملفات.</translation>
    </message>
    <message>
        <source>At most %1 files are sent at once: put more of them into a folder and send that.</source>
        <translation>عدد الملفات التي تُرسل معًا لا يزيد على ⁨%1⁩: ضع ما زاد منها في مجلد وأرسله.</translation>
    </message>
    <message>
        <source>At most %1 files can be offered at a time: stop some under Tools &gt; Transfers...</source>
        <translation>عدد الملفات التي تُعرض في الوقت نفسه لا يزيد على ⁨%1⁩: أوقف بعضها من أدوات &gt; عمليات النقل...</translation>
    </message>
    <message>
        <source>There is nobody here to whom a file could be sent.</source>
        <translation>لا يوجد هنا أحد يمكن إرسال ملف إليه.</translation>
    </message>
    <message>
        <source>Files are not encrypted on their way: whoever can listen in on this network can read them.</source>
        <translation>لا تُشفَّر الملفات أثناء نقلها: كل من يستطيع التنصت على هذه الشبكة يمكنه قراءتها.</translation>
    </message>
    <message>
        <source>its time is over</source>
        <translation>انتهت مدته</translation>
    </message>
    <message>
        <source>nobody was there to be told of it</source>
        <translation>لم يكن هناك أحد لإبلاغه به</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>أُوقف</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>For</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>حتى</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>being prepared</source>
        <translation>قيد التحضير</translation>
    </message>
    <message>
        <source>%1 % to %2</source>
        <translation>⁨%1⁩% إلى ⁨%2⁩</translation>
    </message>
    <message>
        <source>fetched: %1</source>
        <translation>مرات التنزيل: ⁨%1⁩</translation>
    </message>
    <message>
        <source>not fetched yet</source>
        <translation>لم يُنزَّل بعد</translation>
    </message>
    <message>
        <source>over</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>over: %1</source>
        <translation>انتهى: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>⁨%1⁩ ⁨%2⁩</translation>
    </message>
    <message>
        <source>it has been fetched</source>
        <translation>تنزيله</translation>
    </message>
    <message>
        <source>it is stopped</source>
        <translation>إيقافه</translation>
    </message>
    <message>
        <source>Files are offered at %1, which this computer no longer has: nobody can fetch them, until it has it again or you send them once more.</source>
        <translation>هناك ملفات معروضة على العنوان ⁨%1⁩ الذي لم يعد لهذا الحاسوب: لا يمكن لأحد تنزيلها حتى يعود له العنوان أو ترسلها من جديد.</translation>
    </message>
    <message>
        <source>offered at %1, which this computer no longer has</source>
        <translation>معروض على العنوان ⁨%1⁩ الذي لم يعد لهذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>nimb::FilePanel</name>
    <message>
        <source>Further files: %1.</source>
        <translation>ملفات أخرى: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>حفظ الكل...</translation>
    </message>
    <message>
        <source>Saves all that is offered here, in one folder</source>
        <translation>حفظ كل ما هو معروض هنا في مجلد واحد</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>إظهار الكل</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Show here</source>
        <translation>إظهار هنا</translation>
    </message>
</context>
<context>
    <name>nimb::FileRow</name>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Fetches the picture and shows it here, without saving it</source>
        <translation>تنزيل الصورة وعرضها هنا من دون حفظها</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>حفظ...</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>فتح المجلد</translation>
    </message>
    <message>
        <source>Hide this row; Tools &gt; Transfers... still has it</source>
        <translation>إخفاء هذا السطر؛ يبقى موجودًا في «أدوات &gt; عمليات النقل...»</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message>
        <source>Save %1</source>
        <translation>حفظ ⁨%1⁩</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>لا يوجد على هذا الحاسوب برنامج يفتح ‎⁨%1⁩.</translation>
    </message>
    <message>
        <source>This is no picture that NIMB-Chat can read.</source>
        <translation>ليست هذه صورة يستطيع NIMB-Chat قراءتها.</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>الصورة ⁨%1⁩</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: it has more than %1 megapixels. Save it.</source>
        <translation>هذه الصورة أكبر من أن تُعرض: فيها أكثر من ⁨%1⁩ ميغابكسل. احفظها.</translation>
    </message>
</context>
<context>
    <name>nimb::FindBar</name>
    <message>
        <source>Find</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Searches this conversation; Ctrl+H searches everything that was kept</source>
        <translation>البحث في هذه المحادثة؛ ويبحث Ctrl+H في كل ما حُفظ</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>مطابقة حالة الأحرف</translation>
    </message>
    <message>
        <source>Previous (Enter)</source>
        <translation>السابق (Enter)</translation>
    </message>
    <message>
        <source>Next (Shift+Enter)</source>
        <translation>التالي (Shift+Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>إغلاق (Esc)</translation>
    </message>
    <message>
        <source>Search all that was kept</source>
        <translation>البحث في كل ما حُفظ</translation>
    </message>
    <message>
        <source>Opens the history's window</source>
        <translation>فتح نافذة المحفوظات</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>جارٍ البحث...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>لا توجد نتائج</translation>
    </message>
</context>
<context>
    <name>nimb::HistoryModel</name>
    <message>
        <source>%1, %2, in "%3"</source>
        <translation>⁨%1⁩، ⁨%2⁩، في «⁨%3⁩»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>⁨%1⁩، ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>nimb::InvitationList</name>
    <message>
        <source>%1 minute(s)</source>
        <translation>⁨%1⁩ دقيقة</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>مرفوضة</translation>
    </message>
    <message>
        <source>Autorefused</source>
        <translation>مرفوضة تلقائيًا</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>مغلقة</translation>
    </message>
    <message>
        <source>Invitation</source>
        <translation>الدعوة</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>وقت الوصول</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>الرقم</translation>
    </message>
</context>
<context>
    <name>nimb::LogFontDialog</name>
    <message>
        <source>Font of the logs</source>
        <translation>خط السجلات</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>العائلة</translation>
    </message>
    <message>
        <source> points</source>
        <translation> نقطة</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;غامق</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;مائل</translation>
    </message>
    <message>
        <source>Ann: Good morning!</source>
        <translation>سلمى: صباح الخير!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>ال&amp;عائلة:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>ال&amp;حجم:</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>⁨%1⁩ (غير مثبت)</translation>
    </message>
</context>
<context>
    <name>nimb::ManualOpener</name>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>لا يوجد على هذا الحاسوب برنامج يفتح ‎⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message>
        <source>To the newest line</source>
        <translation>إلى أحدث سطر</translation>
    </message>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>لا أسطر جديدة</numerusform>
            <numerusform>سطر جديد</numerusform>
            <numerusform>سطران جديدان</numerusform>
            <numerusform>%n أسطر جديدة</numerusform>
            <numerusform>%n سطرًا جديدًا</numerusform>
            <numerusform>%n سطر جديد</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::Outbox</name>
    <message>
        <source>Of the messages that wait to be sent some could not be read and are lost.</source>
        <translation>تعذرت قراءة بعض الرسائل التي تنتظر الإرسال ففُقدت.</translation>
    </message>
    <message>
        <source>%1 messages wait to be sent already, and no more can.</source>
        <translation>بلغ عدد الرسائل التي تنتظر الإرسال ⁨%1⁩، ولا مكان للمزيد.</translation>
    </message>
    <message>
        <source>--- a message that waited for %1, who is no contact any more, is not sent ---</source>
        <translation>--- لن تُرسل رسالة كانت تنتظر ⁨%1⁩، إذ لم يعد من جهات الاتصال ---</translation>
    </message>
    <message>
        <source>--- the message that waited for %1 was sent ---</source>
        <translation>--- أُرسلت الرسالة التي كانت تنتظر ⁨%1⁩ ---</translation>
    </message>
    <message>
        <source>--- the %1 messages that waited for %2 were sent ---</source>
        <translation>--- أُرسلت الرسائل التي كانت تنتظر ⁨%2⁩ وعددها ⁨%1⁩ ---</translation>
    </message>
    <message>
        <source>What you wrote to %1 (%2) waits to be sent to %3. There is %4 (%5) now.

Send it to %4?</source>
        <translation>ما كتبته إلى ⁨%1⁩ (⁨%2⁩) ينتظر الإرسال إلى ⁨%3⁩. ويوجد هناك الآن ⁨%4⁩ (⁨%5⁩).

هل تريد إرساله إلى ⁨%4⁩؟</translation>
    </message>
    <message>
        <source>--- what you wrote to %1 on %2 was not sent within seven days ---</source>
        <translation>--- ما كتبته إلى ⁨%1⁩ في ⁨%2⁩ لم يُرسل خلال سبعة أيام ---</translation>
    </message>
</context>
<context>
    <name>nimb::Participants</name>
    <message>
        <source>NickName</source>
        <translation>الاسم المستعار</translation>
    </message>
</context>
<context>
    <name>nimb::PeerHeader</name>
    <message>
        <source>Online</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>مشغول</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>غائب</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Not known to be there</source>
        <translation>الوجود غير مؤكد</translation>
    </message>
    <message>
        <source>No contact any more</source>
        <translation>لم يعد من جهات الاتصال</translation>
    </message>
    <message>
        <source>waiting: %1</source>
        <translation>في الانتظار: ⁨%1⁩</translation>
    </message>
    <message>
        <source>waiting to be sent: %1</source>
        <translation>بانتظار الإرسال: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two parts of a sentence</comment>
        <translation>⁨%1⁩؛ ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write is sent when %1 is back</source>
        <translation>وجود ⁨%1⁩ غير مؤكد: ما تكتبه يُرسل عند عودة ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 is not known to be there</source>
        <translation>وجود ⁨%1⁩ غير مؤكد</translation>
    </message>
    <message>
        <source>%1 is not known to be there: what you write may not arrive</source>
        <translation>وجود ⁨%1⁩ غير مؤكد: ما تكتبه قد لا يصل</translation>
    </message>
    <message>
        <source>%1 is offline: what you write is sent when %1 is back</source>
        <translation>المستخدم ⁨%1⁩ غير متصل: ما تكتبه يُرسل عند عودة ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>المستخدم ⁨%1⁩ غير متصل</translation>
    </message>
    <message>
        <source>%1 is offline: what you write does not arrive</source>
        <translation>المستخدم ⁨%1⁩ غير متصل: ما تكتبه لا يصل</translation>
    </message>
    <message>
        <source>%1 is no contact any more: what comes from there is not shown</source>
        <translation>لم يعد ⁨%1⁩ من جهات الاتصال: ما يرد من هناك لا يُعرض</translation>
    </message>
    <message>
        <source>Do not send later</source>
        <translation>عدم الإرسال لاحقًا</translation>
    </message>
    <message>
        <source>Send when %1 is back</source>
        <translation>الإرسال عند عودة ⁨%1⁩</translation>
    </message>
    <message>
        <source>What waits in this conversation is not sent, and what you write now does not wait</source>
        <translation>ما ينتظر في هذه المحادثة لن يُرسل، وما تكتبه الآن لن ينتظر</translation>
    </message>
    <message>
        <source>What you have written and did not arrive is kept, and sent again then; so is what you write now</source>
        <translation>ما كتبته ولم يصل يُحتفظ به ويُعاد إرساله حينئذ؛ وكذلك ما تكتبه الآن</translation>
    </message>
</context>
<context>
    <name>nimb::PersonalizedStateFrame</name>
    <message>
        <source>&amp;State:</source>
        <translation>ال&amp;حالة:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>ال&amp;نص:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
</context>
<context>
    <name>nimb::ReceivedFiles</name>
    <message>
        <source>offered</source>
        <translation>معروض</translation>
    </message>
    <message>
        <source>waits for others</source>
        <translation>ينتظر غيره</translation>
    </message>
    <message>
        <source>%1 % of %2, %3 a second</source>
        <translation>⁨%1⁩% من ⁨%2⁩، ⁨%3⁩ في الثانية</translation>
    </message>
    <message>
        <source>%1 % of %2</source>
        <translation>⁨%1⁩% من ⁨%2⁩</translation>
    </message>
    <message>
        <source>paused at %1 %</source>
        <translation>متوقف مؤقتًا عند ⁨%1⁩%</translation>
    </message>
    <message>
        <source>is being checked</source>
        <translation>قيد التحقق</translation>
    </message>
    <message>
        <source>saved and checked</source>
        <translation>حُفظ وتم التحقق منه</translation>
    </message>
    <message>
        <source>saved; the sender gave nothing to check it by</source>
        <translation>حُفظ؛ لم يرسل المرسل ما يتيح التحقق منه</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>%1 no longer offers this file.</source>
        <translation>لم يعد ⁨%1⁩ يعرض هذا الملف.</translation>
    </message>
    <message>
        <source>checks what is there: %1 %</source>
        <translation>التحقق مما وصل: ⁨%1⁩%</translation>
    </message>
</context>
<context>
    <name>nimb::RichTextLogEdit</name>
    <message>
        <source>Text (*.txt)</source>
        <translation>نص (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>صفحة ويب (*.html)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>تتعذر الكتابة إلى ‎⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;نسخ	Ctrl+C</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>ت&amp;حديد الكل	Ctrl+A</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>ت&amp;كبير</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>ت&amp;صغير</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>الحجم ال&amp;عادي</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F</source>
        <translation>&amp;بحث...	Ctrl+F</translation>
    </message>
    <message>
        <source>&amp;Save Conversation As...</source>
        <translation>ح&amp;فظ المحادثة باسم...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;طباعة...</translation>
    </message>
    <message>
        <source>Copy &amp;Link Address</source>
        <translation>نسخ عنوان ال&amp;رابط</translation>
    </message>
</context>
<context>
    <name>nimb::SpellingMarks</name>
    <message>
        <source>(suggestions take longer)</source>
        <translation>(يستغرق البحث عن الاقتراحات وقتًا أطول)</translation>
    </message>
    <message>
        <source>(no suggestion)</source>
        <translation>(لا توجد اقتراحات)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>إ&amp;يقاف</translation>
    </message>
    <message>
        <source>The files of this dictionary cannot be read or are damaged</source>
        <translation>تتعذر قراءة ملفات هذا القاموس أو أنها تالفة</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <translation>إضافة إلى القاموس</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>التدقيق الإملائي</translation>
    </message>
</context>
<context>
    <name>nimb::TransferList</name>
    <message>
        <source>Nickname</source>
        <translation>الاسم المستعار</translation>
    </message>
</context>
<context>
    <name>nimb::UnfinishedFiles</name>
    <message>
        <source>files that had not all come when NIMB-Chat ended: %2; %1 goes on with them</source>
        <translation>ملفات لم يكتمل وصولها عند إنهاء NIMB-Chat: ⁨%2⁩؛ لاستئنافها: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tools, Transfers...</source>
        <translation>أدوات &gt; عمليات النقل...</translation>
    </message>
</context>
<context>
    <name>nimb::frmAbout</name>
    <message>
        <source>About NIMB-Chat</source>
        <translation>حول NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat's picture</source>
        <translation>صورة NIMB-Chat</translation>
    </message>
    <message>
        <source>NIMB-Chat</source>
        <translation>NIMB-Chat</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار ⁨%1⁩</translation>
    </message>
    <message>
        <source>A simple messenger that works with UDP/IP and it's been intended for use on a small LAN</source>
        <translation>برنامج مراسلة بسيط يعمل عبر UDP/IP ومخصص للشبكات المحلية الصغيرة</translation>
    </message>
    <message>
        <source>Free software under the MIT licence, without any warranty. Nothing that is sent is encrypted: everybody on your network can read it.</source>
        <translation>برنامج حر بموجب ترخيص MIT، من دون أي ضمان. لا شيء مما يُرسل مشفَّر: كل من على شبكتك يستطيع قراءته.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>معلومات الن&amp;ظام...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>معلومات النظام غير متوفرة حاليًا</translation>
    </message>
</context>
<context>
    <name>nimb::frmAddUser</name>
    <message>
        <source>Add offline user</source>
        <translation>إضافة مستخدم غير متصل</translation>
    </message>
    <message>
        <source>Insert user information</source>
        <translation>إدخال معلومات المستخدم</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>إيجاد العنوان</translation>
    </message>
    <message>
        <source>&amp;Nickname</source>
        <translation>ال&amp;اسم المستعار</translation>
    </message>
    <message>
        <source>&amp;Workstation</source>
        <translation>&amp;محطة العمل</translation>
    </message>
    <message>
        <source>&amp;IP Address</source>
        <translation>&amp;عنوان IP</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>nimb::frmConfInvitations</name>
    <message>
        <source>Conference Invitations - NIMB-Chat</source>
        <translation>دعوات المؤتمرات - NIMB-Chat</translation>
    </message>
    <message>
        <source>Invitations</source>
        <translation>الدعوات</translation>
    </message>
    <message>
        <source>Nobody has invited you to a conference. Begin one yourself, and invite your contacts to it from their menu.</source>
        <translation>لم يدعك أحد إلى مؤتمر. أنشئ مؤتمرًا بنفسك، وادعُ إليه جهات اتصالك من قائمتها.</translation>
    </message>
    <message>
        <source>Begin a conference</source>
        <translation>إنشاء مؤتمر</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;قبول</translation>
    </message>
    <message>
        <source>&amp;Deny</source>
        <translation>&amp;رفض</translation>
    </message>
    <message>
        <source>Deny a&amp;ll</source>
        <translation>رفض ال&amp;كل</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;مسح</translation>
    </message>
    <message>
        <source>Removes the invitations that are over</source>
        <translation>إزالة الدعوات المنتهية</translation>
    </message>
    <message>
        <source>Refuse automatically after</source>
        <translation>الرفض تلقائيًا بعد</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>الدقائق</translation>
    </message>
    <message>
        <source>minute(s)</source>
        <translation>دقيقة</translation>
    </message>
</context>
<context>
    <name>nimb::frmConference</name>
    <message>
        <source>Participants</source>
        <translation>المشاركون</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>تحديث القائمة</translation>
    </message>
    <message>
        <source>Kick user</source>
        <translation>طرد المستخدم</translation>
    </message>
    <message>
        <source>Show/Hide partecipants</source>
        <translation>إظهار المشاركين أو إخفاؤهم</translation>
    </message>
    <message>
        <source>Nobody else is here yet.</source>
        <translation>لا أحد غيرك هنا بعد.</translation>
    </message>
    <message>
        <source>Invite somebody...</source>
        <translation>دعوة شخص...</translation>
    </message>
    <message>
        <source>Invite somebody else...</source>
        <translation>دعوة شخص آخر...</translation>
    </message>
    <message>
        <source>No other contact is online</source>
        <translation>لا توجد جهة اتصال أخرى متصلة</translation>
    </message>
    <message>
        <source>Avatars</source>
        <translation>الصور الرمزية</translation>
    </message>
    <message>
        <source>Show/Hide avatars</source>
        <translation>إظهار الصور الرمزية أو إخفاؤها</translation>
    </message>
</context>
<context>
    <name>nimb::frmDoctor</name>
    <message>
        <source>fine</source>
        <translation>سليم</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>مشكوك فيه</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>جارٍ الفحص</translation>
    </message>
    <message>
        <source>NIMB-Chat - Network Doctor</source>
        <translation>NIMB-Chat - تشخيص الشبكة</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>إ&amp;عادة التشخيص</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>نسخ الت&amp;قرير</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>&amp;Does this contact answer?</source>
        <translation>هل ت&amp;جيب جهة الاتصال هذه؟</translation>
    </message>
    <message>
        <source>Contact to be asked</source>
        <translation>جهة الاتصال المطلوب سؤالها</translation>
    </message>
    <message>
        <source>Nobody is in your list yet</source>
        <translation>لا أحد في قائمتك بعد</translation>
    </message>
    <message>
        <source>As&amp;k</source>
        <translation>&amp;سؤالها</translation>
    </message>
    <message>
        <source>The latest datagrams</source>
        <translation>أحدث حزم البيانات</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>البايتات</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Nothing has been sent or received yet.</source>
        <translation>لم يُرسل شيء ولم يُستقبل شيء بعد.</translation>
    </message>
    <message>
        <source>Show what &amp;people wrote</source>
        <translation>إظهار ما كتبه ال&amp;مستخدمون</translation>
    </message>
    <message>
        <source>Nothing has been dropped.</source>
        <translation>لم يُهمَل شيء.</translation>
    </message>
    <message>
        <source>Dropped:</source>
        <translation>المُهمَل:</translation>
    </message>
</context>
<context>
    <name>nimb::frmHistory</name>
    <message>
        <source>NIMB-Chat - History</source>
        <translation>NIMB-Chat - المحفوظات</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>المحادثات</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>Search in what is chosen</source>
        <translation>البحث في المحدد</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>أول يوم</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>آخر يوم</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>from</source>
        <translation>من</translation>
    </message>
    <message>
        <source>to</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>ت&amp;صدير...</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>إ&amp;يقاف</translation>
    </message>
    <message>
        <source>E&amp;rase...</source>
        <translation>&amp;محو...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>أُوقف التصدير.</translation>
    </message>
    <message>
        <source>All conversations</source>
        <translation>جميع المحادثات</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>⁨%1⁩، ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>To be sent (%1)</source>
        <translation>بانتظار الإرسال (⁨%1⁩)</translation>
    </message>
    <message>
        <source>What you have written to contacts who were away</source>
        <translation>ما كتبته إلى جهات اتصال لم تكن متصلة</translation>
    </message>
    <message>
        <source>Not sent to %1</source>
        <translation>لم تُرسل إلى ⁨%1⁩</translation>
    </message>
    <message>
        <source>To be sent to %1</source>
        <translation>بانتظار الإرسال إلى ⁨%1⁩</translation>
    </message>
    <message>
        <source>Nothing is kept yet. In the options you choose whether conversations are.</source>
        <translation>لا شيء محفوظ بعد. اختر من الخيارات هل تُحفظ المحادثات.</translation>
    </message>
    <message>
        <source>Nothing fits what you look for.</source>
        <translation>لا شيء يطابق ما تبحث عنه.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>نص (*.txt)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>صفحة ويب (*.html)</translation>
    </message>
    <message>
        <source>JSON Lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>تتعذر الكتابة إلى ‎⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>NIMB-Chat history</source>
        <translation>محفوظات NIMB-Chat</translation>
    </message>
    <message>
        <source>Messages written: %1.</source>
        <translation>الرسائل المصدَّرة: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Messages written so far: %1</source>
        <translation>الرسائل المصدَّرة حتى الآن: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The chosen &amp;message</source>
        <translation>ال&amp;رسالة المحددة</translation>
    </message>
    <message>
        <source>Erase the chosen message for good?</source>
        <translation>هل تريد محو الرسالة المحددة نهائيًا؟</translation>
    </message>
    <message>
        <source>The chosen &amp;conversation</source>
        <translation>المحا&amp;دثة المحددة</translation>
    </message>
    <message>
        <source>Erase all that is kept of "%1" for good?</source>
        <translation>هل تريد محو كل ما هو محفوظ من «⁨%1⁩» نهائيًا؟</translation>
    </message>
    <message>
        <source>The chosen &amp;days</source>
        <translation>الأيام الم&amp;حددة</translation>
    </message>
    <message>
        <source>Erase all that is kept of the chosen days for good?</source>
        <translation>هل تريد محو كل ما هو محفوظ من الأيام المحددة نهائيًا؟</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>ال&amp;كل</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good?</source>
        <translation>هل تريد محو كل ما هو محفوظ من جميع المحادثات نهائيًا؟</translation>
    </message>
    <message>
        <source>Erase the chosen message? It will not be sent.</source>
        <translation>هل تريد محو الرسالة المحددة؟ لن تُرسل.</translation>
    </message>
    <message>
        <source>Erasing...</source>
        <translation>جارٍ المحو...</translation>
    </message>
    <message>
        <source>Nothing was erased: the history cannot be written.</source>
        <translation>لم يُمحَ شيء: تتعذر الكتابة إلى المحفوظات.</translation>
    </message>
    <message>
        <source>Erase all that is kept of all conversations for good? What waits to be sent stays and is sent.</source>
        <translation>هل تريد محو كل ما هو محفوظ من جميع المحادثات نهائيًا؟ ما ينتظر الإرسال يبقى ويُرسل.</translation>
    </message>
</context>
<context>
    <name>nimb::frmInvite</name>
    <message>
        <source>NIMB-Chat - Invite by net send</source>
        <translation>NIMB-Chat - دعوة عبر net send</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>إر&amp;سال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>الرسالة</translation>
    </message>
    <message>
        <source>S&amp;tandard text</source>
        <translation>نص &amp;قياسي</translation>
    </message>
    <message>
        <source>&amp;Own text</source>
        <translation>نص &amp;خاص</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>نص خاص</translation>
    </message>
    <message>
        <source>Send to the computer %2, for %1</source>
        <translation>إرسال إلى الحاسوب ⁨%2⁩ للمستخدم ⁨%1⁩</translation>
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
        <translation>مرحبًا بك في NIMB-Chat!</translation>
    </message>
    <message>
        <source>Please, choose a nickname for this session</source>
        <translation>يرجى اختيار اسم مستعار لهذه الجلسة</translation>
    </message>
    <message>
        <source>&amp;NickName:</source>
        <translation>الا&amp;سم المستعار:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>nimb::frmMain</name>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Cleared.</source>
        <translation>مُسح السجل.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>جهات الاتصال</translation>
    </message>
    <message>
        <source>Details of the contacts</source>
        <translation>تفاصيل جهات الاتصال</translation>
    </message>
    <message>
        <source>Nickname &amp;&amp; status</source>
        <translation>الاسم المستعار والحالة</translation>
    </message>
    <message>
        <source>User(s) full details</source>
        <translation>التفاصيل الكاملة</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>إعادة ال&amp;فحص</translation>
    </message>
    <message>
        <source>Mute Buzz</source>
        <translation>كتم التنبيه</translation>
    </message>
    <message>
        <source>Users &amp;details</source>
        <translation>تفا&amp;صيل المستخدمين</translation>
    </message>
    <message>
        <source>Selected contact</source>
        <translation>جهة الاتصال المحددة</translation>
    </message>
    <message>
        <source>Own state</source>
        <translation>حالتك</translation>
    </message>
    <message>
        <source>AutoReply</source>
        <translation>الرد التلقائي</translation>
    </message>
    <message>
        <source>AutoReply text...</source>
        <translation>نص الرد التلقائي...</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>الحالة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Addresses asked</source>
        <translation>العناوين التي سُئلت</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Asks nobody else</source>
        <translation>عدم سؤال أحد آخر</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>جميع الملفات (*.*)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNetworkscan</name>
    <message>
        <source>NIMB-Chat - Network Scan</source>
        <translation>NIMB-Chat - فحص الشبكة</translation>
    </message>
    <message>
        <source>Scan/search the network for new NIMB-Chat users</source>
        <translation>فحص الشبكة بحثًا عن مستخدمين جدد لبرنامج NIMB-Chat</translation>
    </message>
    <message>
        <source>&amp;Workstation name / IP Address:</source>
        <translation>اسم م&amp;حطة العمل / عنوان IP:</translation>
    </message>
    <message>
        <source>Everybody on a network of this computer</source>
        <translation>الجميع على شبكة من شبكات هذا الحاسوب</translation>
    </message>
    <message>
        <source>Everybody on...</source>
        <translation>الجميع على...</translation>
    </message>
    <message>
        <source>Note: you can use broadcast IP to scan a whole network (e.g. let's say your IP address is 192.168.1.1 and your subnet mask is 255.255.255.0 then your broadcast IP address is 192.168.1.255)</source>
        <translation>ملاحظة: يمكنك استخدام عنوان IP للبث لفحص شبكة كاملة (مثلًا إذا كان عنوان IP لديك 192.168.1.1 وقناع الشبكة الفرعية 255.255.255.0 فإن عنوان IP للبث هو 192.168.1.255)</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>فحص</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>This computer is in no network now.</source>
        <translation>هذا الحاسوب ليس على أي شبكة الآن.</translation>
    </message>
    <message>
        <source>Network &amp;doctor...</source>
        <translation>تشخيص ال&amp;شبكة...</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
</context>
<context>
    <name>nimb::frmNotify</name>
    <message>
        <source>NIMBChat Notify!</source>
        <translation>إشعارات NIMBChat</translation>
    </message>
    <message>
        <source>hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>ما حدث</translation>
    </message>
</context>
<context>
    <name>nimb::frmOptions</name>
    <message>
        <source>&amp;Suppress messages of status change in private message window</source>
        <translation>إ&amp;خفاء رسائل تغيّر الحالة في نافذة المحادثة الخاصة</translation>
    </message>
    <message>
        <source>Disable sound on &amp;local BUZZ</source>
        <translation>تعطيل صوت التنبيه ال&amp;صادر</translation>
    </message>
    <message>
        <source>Disable sound on &amp;remote BUZZ</source>
        <translation>تعطيل صوت التنبيه ال&amp;وارد</translation>
    </message>
    <message>
        <source>Show private chat window on &amp;top</source>
        <translation>إظهار نافذة المحادثة الخاصة في الم&amp;قدمة</translation>
    </message>
    <message>
        <source>Open private chat window &amp;minimized (default)</source>
        <translation>فتح نافذة المحادثة الخاصة مص&amp;غرة (افتراضي)</translation>
    </message>
    <message>
        <source>Closing a private window only hides it and &amp;keeps its messages</source>
        <translation>إغلاق نافذة خاصة يخفيها فقط و&amp;يُبقي رسائلها</translation>
    </message>
    <message>
        <source>Disable &amp;notify window</source>
        <translation>&amp;تعطيل نافذة الإشعارات</translation>
    </message>
    <message>
        <source>Ticked: nothing slides in, neither who comes and goes nor what arrives</source>
        <translation>عند التحديد: لا تنزلق نافذة تخبر بمن يدخل ويخرج ولا بما يصل</translation>
    </message>
    <message>
        <source>LiveType &amp;disabled by default</source>
        <translation>تعطيل LiveType ا&amp;فتراضيًا</translation>
    </message>
    <message>
        <source>The &amp;close box hides the main window (the tray icon brings it back)</source>
        <translation>&amp;زر الإغلاق يخفي النافذة الرئيسية (وأيقونة علبة النظام تعيدها)</translation>
    </message>
    <message>
        <source>Tell of messages and in&amp;vitations</source>
        <translation>الإ&amp;شعار بالرسائل والدعوات</translation>
    </message>
    <message>
        <source>While their window is not active, and you are not busy; a contact that is muted is never told of</source>
        <translation>حين تكون نافذتها غير نشطة ولست مشغولًا؛ ولا إشعار أبدًا عن جهة اتصال مكتومة</translation>
    </message>
    <message>
        <source>S&amp;how what a message says</source>
        <translation>إظهار نص ال&amp;رسالة</translation>
    </message>
    <message>
        <source>Sound &amp;with a message</source>
        <translation>صوت &amp;عند وصول رسالة</translation>
    </message>
    <message>
        <source>Sound when some&amp;body comes online</source>
        <translation>صوت عند اتصال أ&amp;حدهم</translation>
    </message>
    <message>
        <source>Sound with ever&amp;y invitation</source>
        <translation>صوت عند كل &amp;دعوة</translation>
    </message>
    <message>
        <source>NIMB-Chat - Options</source>
        <translation>NIMB-Chat - خيارات</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>You</source>
        <translation>أنت</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>الاسم المستعار:</translation>
    </message>
    <message>
        <source>Your own states</source>
        <translation>حالاتك المخصصة</translation>
    </message>
    <message>
        <source>Own states:</source>
        <translation>الحالات المخصصة:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Sounds and notices</source>
        <translation>الأصوات والإشعارات</translation>
    </message>
    <message>
        <source>What arrives while you look elsewhere</source>
        <translation>ما يصل وأنت منشغل بغيره</translation>
    </message>
    <message>
        <source>History</source>
        <translation>المحفوظات</translation>
    </message>
    <message>
        <source>Keep conversations</source>
        <translation>حفظ المحادثات</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>for a year</source>
        <translation>لمدة سنة</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>دائمًا</translation>
    </message>
    <message>
        <source>Keep conversations:</source>
        <translation>حفظ المحادثات:</translation>
    </message>
    <message>
        <source>Private windows</source>
        <translation>النوافذ الخاصة</translation>
    </message>
    <message>
        <source>Main window and network</source>
        <translation>النافذة الرئيسية والشبكة</translation>
    </message>
    <message>
        <source>UDP &amp;port:</source>
        <translation>&amp;منفذ UDP:</translation>
    </message>
    <message>
        <source>Your address</source>
        <translation>عنوانك</translation>
    </message>
    <message>
        <source>Yo&amp;ur address:</source>
        <translation>ع&amp;نوانك:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>the desktop's</source>
        <translation>لغة سطح المكتب</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>اللغة:</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>يسري التغيير عند بدء التشغيل التالي.</translation>
    </message>
    <message>
        <source>Font of the logs</source>
        <translation>خط السجلات</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <translation>الخ&amp;ط...</translation>
    </message>
    <message>
        <source>New windows use it; open ones keep theirs.</source>
        <translation>تستخدمه النوافذ الجديدة؛ وتحتفظ النوافذ المفتوحة بخطها.</translation>
    </message>
    <message>
        <source>Your avatar</source>
        <translation>صورتك الرمزية</translation>
    </message>
    <message>
        <source>No &amp;avatar</source>
        <translation>&amp;بلا صورة رمزية</translation>
    </message>
    <message>
        <source>A p&amp;icture:</source>
        <translation>صورة &amp;ثابتة:</translation>
    </message>
    <message>
        <source>Pictures that chan&amp;ge:</source>
        <translation>صور مت&amp;جددة:</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>الصورة</translation>
    </message>
    <message>
        <source>L&amp;oad...</source>
        <translation>تحمي&amp;ل...</translation>
    </message>
    <message>
        <source>Where the pictures come from</source>
        <translation>مصدر الصور</translation>
    </message>
    <message>
        <source>of the camera</source>
        <translation>من الكاميرا</translation>
    </message>
    <message>
        <source>of a folder</source>
        <translation>من مجلد</translation>
    </message>
    <message>
        <source>Choos&amp;e...</source>
        <translation>&amp;اختيار...</translation>
    </message>
    <message>
        <source>A picture can also be dropped here or pasted. Pictures that change end with NIMB-Chat; the picture is kept.</source>
        <translation>يمكن أيضًا إفلات صورة هنا أو لصقها. تنتهي الصور المتجددة بانتهاء NIMB-Chat؛ أما الصورة الثابتة فتُحفظ.</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>اسألني</translation>
    </message>
    <message>
        <source>The environment variable NIMBCHAT_ADDRESS says it</source>
        <translation>يحدده متغير البيئة NIMBCHAT_ADDRESS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>%1, %2 points</source>
        <translation>⁨%1⁩، ⁨%2⁩ نقطة</translation>
    </message>
    <message>
        <source>the desktop's font: %1, %2 points</source>
        <translation>خط سطح المكتب: ⁨%1⁩، ⁨%2⁩ نقطة</translation>
    </message>
    <message>
        <source>Images (*.jpg,*.gif,*.bmp)</source>
        <translation>الصور (*.jpg,*.gif,*.bmp)</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>البدء مع سطح المكتب</translation>
    </message>
    <message>
        <source>At every login, minimised, under your nickname</source>
        <translation>عند كل تسجيل دخول، مصغّرًا، باسمك المستعار</translation>
    </message>
</context>
<context>
    <name>nimb::frmPrivate</name>
    <message>
        <source>NIMB-Chat - Private Chat</source>
        <translation>NIMB-Chat - محادثة خاصة</translation>
    </message>
    <message>
        <source>What the peer is typing</source>
        <translation>ما يكتبه الطرف الآخر</translation>
    </message>
    <message>
        <source>Buzz!</source>
        <translation>تنبيه!</translation>
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
        <translation>يرى الطرف الآخر ما تكتبه قبل أن ترسله</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>المزاج</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>الصورة الرمزية</translation>
    </message>
    <message>
        <source>Avatar of the peer</source>
        <translation>الصورة الرمزية للطرف الآخر</translation>
    </message>
    <message>
        <source>Your mood (unspecified)</source>
        <translation>مزاجك (غير محدد)</translation>
    </message>
    <message>
        <source>His/her mood (unspecified)</source>
        <translation>مزاج الطرف الآخر (غير محدد)</translation>
    </message>
    <message>
        <source>You</source>
        <translation>أنت</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>الطرف الآخر</translation>
    </message>
    <message>
        <source>Address of the peer</source>
        <translation>عنوان الطرف الآخر</translation>
    </message>
    <message>
        <source>Your mood (%1)</source>
        <translation>مزاجك (⁨%1⁩)</translation>
    </message>
    <message>
        <source>His/her mood (%1)</source>
        <translation>مزاج الطرف الآخر (⁨%1⁩)</translation>
    </message>
</context>
<context>
    <name>nimb::frmSendContact</name>
    <message>
        <source>NIMB-Chat - Send Contacts to '%1'</source>
        <translation>NIMB-Chat - إرسال جهات اتصال إلى «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Choose the selected contacts</source>
        <translation>اختيار جهات الاتصال المحددة</translation>
    </message>
    <message>
        <source>Choose all contacts</source>
        <translation>اختيار جميع جهات الاتصال</translation>
    </message>
    <message>
        <source>Take the selected contacts back</source>
        <translation>إرجاع جهات الاتصال المحددة</translation>
    </message>
    <message>
        <source>Take all contacts back</source>
        <translation>إرجاع جميع جهات الاتصال</translation>
    </message>
    <message>
        <source>Select the contacts you want to send</source>
        <translation>حدد جهات الاتصال التي تريد إرسالها</translation>
    </message>
    <message>
        <source>Contacts that can be sent</source>
        <translation>جهات الاتصال التي يمكن إرسالها</translation>
    </message>
    <message>
        <source>No more contacts to send</source>
        <translation>لا توجد جهات اتصال أخرى لإرسالها</translation>
    </message>
    <message>
        <source>Contacts chosen for sending</source>
        <translation>جهات الاتصال المختارة للإرسال</translation>
    </message>
    <message>
        <source>Contacts moved here will be sent</source>
        <translation>تُرسل جهات الاتصال المنقولة إلى هنا</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>إر&amp;سال</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
</context>
<context>
    <name>nimb::frmShortcuts</name>
    <message>
        <source>Open the manual at the page of the window</source>
        <translation>فتح دليل الاستخدام عند صفحة النافذة</translation>
    </message>
    <message>
        <source>Find a contact; typing in the list does the same</source>
        <translation>البحث عن جهة اتصال؛ والكتابة في القائمة تؤدي الغرض نفسه</translation>
    </message>
    <message>
        <source>What was kept of conversations</source>
        <translation>ما حُفظ من المحادثات</translation>
    </message>
    <message>
        <source>Open the private window of the selected contact</source>
        <translation>فتح النافذة الخاصة لجهة الاتصال المحددة</translation>
    </message>
    <message>
        <source>Remove the selected contacts, after a question</source>
        <translation>إزالة جهات الاتصال المحددة بعد التأكيد</translation>
    </message>
    <message>
        <source>Leave the search for a contact</source>
        <translation>الخروج من البحث عن جهة اتصال</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>إرسال الرسالة</translation>
    </message>
    <message>
        <source>Begin another line</source>
        <translation>بدء سطر جديد</translation>
    </message>
    <message>
        <source>In an empty box: bring back the last message</source>
        <translation>في مربع فارغ: استرجاع آخر رسالة</translation>
    </message>
    <message>
        <source>Choose an emoji</source>
        <translation>اختيار إيموجي</translation>
    </message>
    <message>
        <source>Buzz (private windows)</source>
        <translation>تنبيه (النوافذ الخاصة)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>Leave the search, the emoticons or the emoji</source>
        <translation>الخروج من البحث أو الوجوه التعبيرية أو الإيموجي</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>البحث في السجل</translation>
    </message>
    <message>
        <source>Copy what is selected</source>
        <translation>نسخ المحدد</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>تكبير الأحرف</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>تصغير الأحرف</translation>
    </message>
    <message>
        <source>Letters of their own size</source>
        <translation>الحجم الأصلي للأحرف</translation>
    </message>
    <message>
        <source>Every window</source>
        <translation>جميع النوافذ</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>النافذة الرئيسية</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>المحادثات</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>السجلات</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>NIMB-Chat - Keyboard Shortcuts</source>
        <translation>NIMB-Chat - اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>nimb::frmTipOfTheDay</name>
    <message>
        <source>Did you know?</source>
        <translation>هل تعلم؟</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>التلميح</translation>
    </message>
    <message>
        <source>NIMB-Chat is free software under the MIT licence. You are welcome to pass it on to everybody in your network.</source>
        <translation>إن NIMB-Chat برنامج حر بموجب ترخيص MIT. يسرّنا أن تشاركه مع كل من على شبكتك.</translation>
    </message>
    <message>
        <source>&amp;Show tips at start</source>
        <translation>إ&amp;ظهار التلميحات عند بدء التشغيل</translation>
    </message>
    <message>
        <source>&amp;Next tip</source>
        <translation>ال&amp;تلميح التالي</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
</context>
<context>
    <name>nimb::frmTransfers</name>
    <message>
        <source>NIMB-Chat - Transfers</source>
        <translation>NIMB-Chat - عمليات النقل</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>What you offer, as long as NIMB-Chat runs</source>
        <translation>ما تعرضه ما دام NIMB-Chat يعمل</translation>
    </message>
    <message>
        <source>What you offer</source>
        <translation>ما تعرضه</translation>
    </message>
    <message>
        <source>Nothing is offered. Drop files or folders on a conversation, or press the paper clip there.</source>
        <translation>لا شيء معروض. أفلت ملفات أو مجلدات على محادثة، أو اضغط مشبك الورق فيها.</translation>
    </message>
    <message>
        <source>Until when it is offered</source>
        <translation>مدة العرض</translation>
    </message>
    <message>
        <source>For 24 hours</source>
        <translation>لمدة 24 ساعة</translation>
    </message>
    <message>
        <source>Until it has been fetched once</source>
        <translation>حتى تنزيله مرة واحدة</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>حتى إيقافه</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>إ&amp;يقاف</translation>
    </message>
    <message>
        <source>What others offer you</source>
        <translation>ما يعرضه عليك الآخرون</translation>
    </message>
    <message>
        <source>Nobody has offered you a file since NIMB-Chat was started.</source>
        <translation>لم يعرض عليك أحد ملفًا منذ بدء NIMB-Chat.</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>&amp;حفظ...</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>إيقاف &amp;مؤقت</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>ا&amp;ستئناف</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;فتح المجلد</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1.</source>
        <translation>لا يوجد على هذا الحاسوب برنامج يفتح ‎⁨%1⁩.</translation>
    </message>
    <message>
        <source>Save A&amp;ll...</source>
        <translation>حفظ ال&amp;كل...</translation>
    </message>
    <message>
        <source>Saves all that is offered and has not been fetched, in one folder</source>
        <translation>الحفظ في مجلد واحد لكل ما هو معروض ولم يُنزَّل بعد</translation>
    </message>
    <message>
        <source>Save A&amp;ll (%1)...</source>
        <translation>حفظ ال&amp;كل (⁨%1⁩)...</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>&amp;تجاهل...</translation>
    </message>
    <message>
        <source>Gives the file up, and removes what has come of it</source>
        <translation>التخلي عن الملف وإزالة ما وصل منه</translation>
    </message>
    <message>
        <source>Discard "%1"? What has come of it, %2, is removed from the disk.</source>
        <translation>هل تريد تجاهل «⁨%1⁩»؟ سيُزال من القرص ما وصل منه، ⁨%2⁩.</translation>
    </message>
</context>
</TS>
