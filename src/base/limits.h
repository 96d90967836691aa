// Every limit of the program, each with its reason.
#pragma once

#include <QtGlobal>

#include <chrono>
#include <cstddef>

namespace nimb::limits
{

/// Characters of one message: even as three-byte UTF-8 it fits a datagram that most networks carry.
constexpr qsizetype messageLength = 2000;
/// From which on a counter says how many characters a message has.
constexpr qsizetype messageLengthShown = 1800;
/// Characters of a nickname or workstation name that are kept; more is no name but an attack on the layout.
constexpr qsizetype nameLength = 255;
/// Characters of a name that menus, lists and the pop-up paint before an ellipsis.
constexpr qsizetype paintedNameLength = 64;
/// Characters of the own name in the tip of the tray icon, of which some systems show 63 in all.
constexpr qsizetype trayNameLength = 20;
/// Characters of a received text that are shown: laying out one line of 64,000 takes seconds.
constexpr qsizetype shownTextLength = 8000;
/// Lines of a received text that are shown: more push everything else out of sight.
constexpr int shownLines = 200;
/// Emoticons of one message that are drawn: fixed, other copies show the rest as text too.
constexpr int messagePictures = 10;
/// How long messages are gathered before they are written to the history: what was shown 200 ms before a power cut is
/// there afterwards, and a burst costs one writing.
constexpr std::chrono::milliseconds historyGathered{100};
/// Messages that wait for a history that cannot be written; the oldest go first.
constexpr std::size_t historyWaiting = 100'000;
/// Contacts that are left out of the history: as many as anybody picks by hand.
constexpr qsizetype historyLeftOut = 1000;
/// Messages that are kept once the user has said whether: those of the conversation in which he is asked.
constexpr std::size_t historyUndecided = 1000;
/// Kept messages with which a conversation opens, and how many more come when its reader scrolls up.
constexpr int historyShown = 50;
constexpr int historyPage = 200;
/// Of what an earlier run left unread, that are shown at once: further up they come as the reader comes to them.
constexpr int historyOfUnread = 1000;
/// Messages that wait until their receivers are there: they are stored as one value, and who writes more than that to
/// people who are away sends mail.
constexpr std::size_t outboxMessages = 200;
/// After which they are not sent any more.
constexpr int outboxDays = 7;
/// From when a receiver is back until the first is sent, and between two of them: it may still be starting, and nobody
/// reads faster.
constexpr std::chrono::milliseconds outboxPause{1000};
constexpr std::chrono::milliseconds outboxPace{500};
/// How long the program that opens an address can say that it has failed: later it has shown something.
constexpr std::chrono::milliseconds handlerWatched{20000};
/// How long what was cleared can be brought back.
constexpr std::chrono::milliseconds clearedKept{10000};
/// Lines a log holds; beyond it re-layout and memory grow without use to anybody.
constexpr int logLines = 50000;
/// Lines dropped at a time from a full log: dropping one by one lays the document out anew for each line.
constexpr int logLinesDropped = 1000;
/// Characters a log holds: lines of 8000 would take a gigabyte long before there are too many of them.
constexpr int logCharacters = 4'000'000;
/// Pictures a log holds: each takes as much memory as a hundred lines of text.
constexpr int logPictures = 5000;
/// How many times that the logs of all conversations hold together: windows that strangers open would take gigabytes,
/// and nobody reads so much. The fullest one loses its oldest lines.
constexpr double fullLogs = 6;
/// Emoji that are offered as used lately: two rows of them, and nobody remembers more.
constexpr qsizetype recentEmoji = 24;
/// Characters of one stored emoji; the longest of Unicode have 15.
constexpr qsizetype emojiLength = 40;
/// Contact rows up to which strangers are added: a subnet of 65,000 forged addresses must not fill the list.
constexpr int contactsFromStrangers = 10000;
/// A stored list that is as long as this was filled by strangers: nobody gathers so many himself.
constexpr std::size_t contactsOfCrowd = 9000;
/// Private windows that peers have opened and that the user has not turned to: two thousand strangers with a message
/// each must not open two thousand windows. Further messages wait at their contacts' rows.
constexpr int windowsOpenedUnasked = 50;
/// Of these, how many open at once. Each takes ten milliseconds, in which nobody else is answered.
constexpr int windowsAtOnce = 3;
/// After this one more may open: fifty take two seconds, and there is time for everything else in between.
constexpr std::chrono::milliseconds windowPause{40};
/// Messages that wait at the row of one contact.
constexpr qsizetype waitingMessages = 100;
/// Characters of all messages that wait. Those of contacts whom peers have brought in this run may be half of it, so
/// that a crowd of strangers leaves room for those whom the user knows.
constexpr qsizetype waitingCharacters = 4'000'000;
/// Messages of one contact that are counted as unread: more than a thousand tell nothing more, and each is a change of
/// the list.
constexpr int unreadCounted = 999;
/// Characters of what is being typed that the peer sees: the last ones are what matters.
constexpr qsizetype liveTextLength = 200;
/// Bytes of an avatar's head that are kept: a time stamp, or how a polled picture begins.
constexpr std::size_t avatarHeadLength = 255;
/// Pictures of contacts whom peers have brought in this run: those of ten thousand would take as much memory as the
/// whole program.
constexpr int avatarsOfStrangers = 1000;
/// Pixels of a picture that is to become the own avatar: it is shown with 50 by 50, and more would take the memory of
/// the whole program many times over.
constexpr qint64 pictureFilePixels = 50'000'000;
/// MiB that Qt may take for one: the above with its largest pixels of eight bytes.
constexpr int pictureFileMemory = 512;
/// Pixels of a picture of somebody else's that is shown small: what most cameras and phones make. 5 MB may hold any
/// number of pixels of one colour; these take 0.7 s, and 100 MB where the format must be read whole (GIF).
constexpr qint64 shownPicturePixels = 25'000'000;
/// After so long it is no picture that anybody means to be looked at: JPEG may say the same pixel thousands of times.
constexpr std::chrono::seconds shownPictureTime{10};
/// Invitations that wait: a host that sends more of them wants to annoy.
constexpr int invitations = 1000;
/// Of one host: it has five conferences at most, and now and then a new one.
constexpr int invitationsOfHost = 50;
/// Participants of a joined conference that are taken from its host's list.
constexpr std::size_t participants = 1000;
/// Rows that wait in the notification window.
constexpr qsizetype notifications = 100;
/// Characters of a message that its notice shows.
constexpr qsizetype noticeLength = 200;
/// Senders of whom one is told together: more of them are no news but a nuisance, and the list counts what they sent.
constexpr std::size_t noticesAtOnce = 10;
/// Time between two of these, and between two sounds.
constexpr std::chrono::milliseconds noticePause{1000};
/// Peers of whom is remembered which own address leads to them: more than there are contacts, and no scan of many
/// networks fills the memory.
constexpr std::size_t waysRemembered = 20000;
/// Bytes of datagrams that wait for the engine: a burst of 100,000 messages, while memory stays what people expect.
constexpr std::size_t waitingArrivals = std::size_t{32} * 1024 * 1024;
/// After so long the windows and timers have their turn before the next datagrams: some take ten milliseconds each.
constexpr std::chrono::milliseconds turnOfArrivals{8};
/// How long at a time the one who handles what has arrived leaves the processor to the one who reads it: what takes no
/// longer is felt to happen at once.
constexpr std::chrono::milliseconds readersLead{100};
/// And in all: a burst of 100,000 is over before.
constexpr std::chrono::milliseconds readersLeadInAll{1000};
/// Lines a second that one sender's datagrams nobody understands may write: they tell that something is wrong there,
/// and more of them tell nothing more. What is beyond is counted in one line.
constexpr int unknownLinesPerSecond = 20;
/// Contacts asked in one turn of the event loop during an announcement, so that their answers are read between.
constexpr std::size_t announcementBatch = 64;
/// Questions of an announcement that wait for their answers at a time: for each silent neighbour the system keeps an
/// entry while it looks for it, and with some thousand of them it finds nobody any more.
constexpr qsizetype questionsUnderWay = 512;
/// How often an announcement that waits looks for questions that have waited long enough.
constexpr std::chrono::milliseconds questionsLooked{50};
/// Questions of a search that leave in a tenth of a second: a network of 254 is asked within three seconds.
constexpr std::size_t questionsOfSearch = 10;
/// A file of contacts: some ten thousand lines.
constexpr qint64 contactFileBytes = qint64{1024} * 1024;
/// Of a range that is asked address by address: 254 of them.
constexpr int smallestScannedPrefix = 24;
/// Names in one line of the log: of those who answered a search, of contacts that were sent.
constexpr qsizetype namesInLine = 20;
/// Faults of an imported file that are told; a box with more would leave the screen.
constexpr std::size_t faultsTold = 10;
/// Two contacts of the same names that are heard within this time may be one machine with two addresses.
constexpr std::chrono::milliseconds sameMachineTime{1000};
/// Contacts of one name among which such a machine is looked for: whoever has more addresses forges them.
constexpr qsizetype lookAlikesCompared = 8;
/// Contacts that are hidden because another one stands for them, for the same reason.
constexpr std::size_t machinesShownOnce = 100;
/// How long an announcement waits for answers.
constexpr std::chrono::milliseconds announcementTime{1000};
/// At most one avatar body and one list of participants for the same contact in this time: a question of twelve bytes,
/// from whatever address it claims to come, makes an answer of seven thousand.
constexpr std::chrono::milliseconds answerPause{1000};
/// Lists of one conference that are taken at once from its host, who earns another in each answerPause: each one walks
/// through the whole list. As many guests may come one upon the other and have names at once.
constexpr int listsAtOnce = 50;
/// At most one automatic reply in this time: a flood of messages must not become a flood of answers.
constexpr std::chrono::milliseconds autoReplyPause{1000};
/// Time between two attempts to get a port that another program holds.
constexpr std::chrono::milliseconds bindRetry{5000};
/// Within this time after a change of this machine's networks its contacts are asked. Each machine chooses for itself:
/// a hall of them that wake together would answer each other all at once.
constexpr std::chrono::milliseconds announcementSpread{3000};
/// How long the status bar says that the networks have changed.
constexpr std::chrono::milliseconds networkChangeShown{10000};
/// How long a change of contacts or settings may wait for others before it is kept: a run that is killed loses no more.
constexpr std::chrono::milliseconds keepDelay{1000};
/// Time until what could not be kept is tried again; each further pause is twice as long, up to so many times that.
constexpr std::chrono::milliseconds keepRetry{1000};
constexpr int longestKeepRetry = 32;
/// Characters of a word whose spelling is checked: longer ones are no words, and looking for what else they may be
/// takes seconds.
constexpr qsizetype spelledWordLength = 64;
/// Words whose spelling is remembered: those of several full input boxes.
constexpr int spelledWordsKept = 4000;
/// Words that one question to a dictionary holds, so that another question does not wait long.
constexpr qsizetype spelledWordsAtOnce = 50;
/// Words that the user has added to the dictionaries: they are stored as one value.
constexpr qsizetype ownSpellingWords = 2000;
/// Words of names that count as known: a crowd of strangers must not fill the memory.
constexpr qsizetype namesKnownToSpelling = 20000;
/// Corrections that are offered.
constexpr qsizetype spellingSuggestions = 5;
/// How long a context menu waits for them.
constexpr std::chrono::milliseconds suggestionTime{100};
/// Bytes of each file of a dictionary: several times the largest that there is.
constexpr qint64 dictionaryFileBytes = qint64{32} * 1024 * 1024;
/// Characters of the name of a file that goes to another computer.
constexpr qsizetype fileNameLength = 200;
/// Of the same name in UTF-8: systems allow 255, and a number or the mark of what is unfinished follows.
constexpr qsizetype fileNameBytes = 232;
/// Of the same name in its link, encoded: with all that stands before it a link opens 1023 characters at most.
constexpr qsizetype fileNameEncoded = 800;
/// Files that one drop or choice sends: each is a message.
constexpr int filesAtOnce = 20;
/// Files that are offered at a time: each is a row that somebody has to oversee.
constexpr int filesOffered = 200;
/// Files whose fetching is gone on with after the next start.
constexpr qsizetype filesUnfinished = 50;
/// Rows of files that others offer, as many as anybody reads; the oldest go first.
constexpr int filesReceived = 500;
/// Files and folders in one that is offered: reading their names and sizes takes seconds.
constexpr std::size_t filesInFolder = 200'000;
/// Files that are sent at once, and how many of them to one peer: more share the same line and none of them comes.
constexpr int filesSentAtOnce = 8;
constexpr int filesSentToPeer = 4;
/// Rows of a conversation's panel of files; the others are under Tools > Transfers...
constexpr int filesInPanel = 3;
/// Those of the others that get rows when the user wants them there.
constexpr std::ptrdiff_t furtherFilesInPanel = 20;
/// Sentences of a conversation on files that were not sent: more would take the room of what was said.
constexpr qsizetype fileTroublesShown = 3;
/// Files that are received at once; others wait.
constexpr int filesReceivedAtOnce = 4;
/// Of them those of one sender.
constexpr int filesReceivedFromOne = 3;
/// Connections to the server of files: a peer may look while it loads. Each has a thread with a small stack.
constexpr int fileConnections = 64;
constexpr int fileConnectionsOfPeer = 12;
/// Of all to whom nothing is offered: they are told so and must not keep the others out.
constexpr int fileConnectionsOfStrangers = 16;
/// Bytes of the head of a request, and of an answer: some hundred are needed.
constexpr int fileRequestBytes = 16 * 1024;
/// Time without progress after which a transfer ends.
constexpr std::chrono::seconds fileTransferStalls{30};
/// Files up to here are summed within a second, and never after larger ones.
constexpr std::uint64_t fileSummedSoon = std::uint64_t{128} * 1024 * 1024;
/// What is read of a file and held in memory at a time, for each transfer.
constexpr std::size_t filePiece = std::size_t{256} * 1024;
/// How often the progress of a transfer is told.
constexpr std::chrono::milliseconds fileProgressTold{250};
/// The ports that are tried behind the first where others hold it.
constexpr int filePortsTried = 50;
/// How long a file is offered unless the user says otherwise.
constexpr std::chrono::hours fileOffered{24};
/// Bytes of a picture that is shown before it is saved: what a click brings into memory.
constexpr qint64 shownPictureBytes = qint64{5} * 1000 * 1000;
/// Personalised states that the store keeps.
constexpr int storedPersonalizedStates = 8;

} // namespace nimb::limits
