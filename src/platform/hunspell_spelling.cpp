#include "platform/hunspell_spelling.h"

#include <QCoreApplication>
#include <QEvent>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <utility>

namespace nimb
{

struct HunspellSpelling::Question {
    enum class Kind { languages, check, suggest, rest };
    Kind kind = Kind::languages;
    QString language{};
    QStringList words{};
    quint64 number = 0;
};

struct HunspellSpelling::Answer {
    quint64 number = 0;
    std::vector<SpellingLanguage> languages{};
    std::optional<QStringList> words{};
};

/// Rings on the thread of the event loop.
class HunspellSpelling::Bell : public QObject
{
public:
    explicit Bell(HunspellSpelling &owner) : m_owner(owner) { }

    /// From any thread.
    void ring() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        m_owner.deliver();
        return true;
    }

private:
    HunspellSpelling &m_owner;
};

/// Where both threads put what the other one takes; all that they share.
class HunspellSpelling::Desk
{
public:
    explicit Desk(Bell &bell) : m_bell(&bell) { }

    void put(Question question)
    {
        const std::lock_guard lock(m_mutex);
        if (question.kind == Question::Kind::suggest)
            m_questions.push_front(std::move(question));
        else
            m_questions.push_back(std::move(question));
        m_wake.notify_one();
    }

    /// Waits for it; nothing at the end.
    std::optional<Question> take()
    {
        std::unique_lock lock(m_mutex);
        m_wake.wait(lock, [this] { return !m_bell || !m_questions.empty(); });
        if (!m_bell)
            return std::nullopt;
        Question question = std::move(m_questions.front());
        m_questions.pop_front();
        return question;
    }

    /// Qt is touched only while the other side is there: a late answer may come in the middle of the program's end.
    void answer(Answer answer)
    {
        const std::lock_guard lock(m_mutex);
        if (!m_bell)
            return;
        m_answers.push_back(std::move(answer));
        m_bell->ring();
    }

    std::vector<Answer> takeAnswers()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_answers, {});
    }

    bool isOver()
    {
        const std::lock_guard lock(m_mutex);
        return !m_bell;
    }

    /// Something that cannot be broken off may begin.
    bool beginLongCall()
    {
        const std::lock_guard lock(m_mutex);
        m_inLongCall = m_bell != nullptr;
        return m_inLongCall;
    }

    void endLongCall()
    {
        const std::lock_guard lock(m_mutex);
        m_inLongCall = false;
    }

    /// Whether the thread ends soon.
    bool close()
    {
        const std::lock_guard lock(m_mutex);
        m_bell = nullptr;
        m_questions.clear();
        m_wake.notify_one();
        return !m_inLongCall;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_wake;
    Bell *m_bell; ///< null at the end
    bool m_inLongCall = false;
    std::deque<Question> m_questions;
    std::vector<Answer> m_answers;
};

/// What the thread does.
class HunspellSpelling::Worker
{
public:
    Worker(Desk &desk, QStringList folders) : m_desk(desk), m_folders(std::move(folders)) { }

    void run()
    {
        while (const std::optional<Question> question = m_desk.take())
            m_desk.answer(answerTo(*question));
    }

private:
    Answer answerTo(const Question &question)
    {
        switch (question.kind) {
        case Question::Kind::languages:
            return {question.number, languages()};
        case Question::Kind::check:
            return {question.number, {}, misspeltOf(question)};
        case Question::Kind::suggest:
            return {question.number, {}, suggestions(question)};
        case Question::Kind::rest:
            m_dictionary.reset();
            m_language.clear();
            break;
        }
        return {question.number};
    }

    std::vector<SpellingLanguage> languages()
    {
        m_installed = installedDictionaries(m_folders);
        std::vector<SpellingLanguage> all;
        for (const DictionaryFiles &one : *m_installed)
            all.push_back(one.language);
        return all;
    }

    std::optional<QStringList> misspeltOf(const Question &question)
    {
        if (!open(question.language))
            return std::nullopt;
        QStringList misspelt;
        for (const QString &word : question.words) {
            if (m_desk.isOver())
                break;
            if (!m_dictionary->has(word))
                misspelt.append(word);
        }
        return misspelt;
    }

    QStringList suggestions(const Question &question)
    {
        QStringList list;
        if (open(question.language))
            inLongCall([&] { list = m_dictionary->suggestions(question.words.constFirst()); });
        return list;
    }

    bool open(const QString &language)
    {
        if (m_language == language)
            return m_dictionary != nullptr;
        m_dictionary.reset();
        m_language = language;
        if (!m_installed)
            languages();
        for (const DictionaryFiles &one : *m_installed) {
            if (one.language.name == language)
                inLongCall([&] { m_dictionary = HunspellDictionary::open(one); });
        }
        return m_dictionary != nullptr;
    }

    template <class Call> void inLongCall(const Call &call)
    {
        if (!m_desk.beginLongCall())
            return;
        call();
        m_desk.endLongCall();
    }

    Desk &m_desk;
    QStringList m_folders;
    std::optional<std::vector<DictionaryFiles>> m_installed;
    QString m_language; ///< that was opened last, perhaps in vain
    std::unique_ptr<HunspellDictionary> m_dictionary;
};

HunspellSpelling::HunspellSpelling(QStringList folders)
    : m_folders(std::move(folders)), m_bell(std::make_unique<Bell>(*this)), m_desk(std::make_shared<Desk>(*m_bell))
{
}

HunspellSpelling::~HunspellSpelling()
{
    const bool endsSoon = m_desk->close();
    if (!m_thread.joinable())
        return;
    if (endsSoon)
        m_thread.join();
    else
        m_thread.detach();
}

void HunspellSpelling::findLanguages(LanguagesFound found)
{
    ask({Question::Kind::languages}, [found = std::move(found)](const Answer &answer) { found(answer.languages); });
}

void HunspellSpelling::check(const QString &language, const QStringList &words, Checked checked)
{
    ask({Question::Kind::check, language, words},
        [checked = std::move(checked)](const Answer &answer) { checked(answer.words); });
}

void HunspellSpelling::suggest(const QString &language, const QString &word, Suggested suggested)
{
    ask({Question::Kind::suggest, language, {word}},
        [suggested = std::move(suggested)](const Answer &answer) { suggested(answer.words.value_or(QStringList())); });
}

void HunspellSpelling::rest()
{
    if (m_thread.joinable())
        ask({Question::Kind::rest}, [](const Answer &) {});
}

void HunspellSpelling::ask(Question question, const Taken &taken)
{
    question.number = ++m_questions;
    m_waiting.insert(question.number, taken);
    const quint64 number = question.number;
    m_desk->put(std::move(question));
    if (m_thread.joinable())
        return;
    try {
        m_thread = std::thread([desk = m_desk, folders = m_folders] { Worker(*desk, folders).run(); });
    } catch (const std::system_error &) { // nobody is there to answer: no languages, and nothing can be checked
        m_desk->answer({number});
    }
}

void HunspellSpelling::deliver()
{
    for (const Answer &answer : m_desk->takeAnswers()) {
        if (const Taken taken = m_waiting.take(answer.number))
            taken(answer);
    }
}

} // namespace nimb
