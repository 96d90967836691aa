// Checks words with the dictionaries that are installed.
#pragma once

#include "platform/hunspell_dictionary.h"

#include <QHash>
#include <QObject>

#include <memory>
#include <thread>

namespace nimb
{

/// One thread, begun with the first question, reads dictionaries and looks words up. The end waits for no more than a
/// word: while a dictionary is being read or suggestions are looked for, which nothing can break off, the thread is
/// left to itself. Needs the application object.
class HunspellSpelling : public SpellChecker
{
public:
    explicit HunspellSpelling(QStringList folders = dictionaryFolders());
    ~HunspellSpelling() override;
    HunspellSpelling(const HunspellSpelling &) = delete;
    HunspellSpelling &operator=(const HunspellSpelling &) = delete;

    void findLanguages(LanguagesFound found) override;
    void check(const QString &language, const QStringList &words, Checked checked) override;
    void suggest(const QString &language, const QString &word, Suggested suggested) override;
    void rest() override;

private:
    class Desk;
    class Bell;
    class Worker;
    struct Question;
    struct Answer;
    using Taken = std::function<void(const Answer &)>;

    void ask(Question question, const Taken &taken);
    void deliver();

    QStringList m_folders;
    std::unique_ptr<Bell> m_bell;
    std::shared_ptr<Desk> m_desk; ///< outlives this where the thread is left to itself
    std::thread m_thread;
    quint64 m_questions = 0;
    QHash<quint64, Taken> m_waiting;
};

} // namespace nimb
