// What a long history costs: history_bench [messages]
// Writes so many messages of a hundred contacts into a file in a folder of its own, and asks it as its window does.
// Each question is asked eleven times; the file is opened anew before. Prints one JSON object, times in milliseconds.
#include "history/history_file.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>

namespace
{

using namespace nimb;

constexpr int batch = 2000;
constexpr int contacts = 100;
constexpr int repetitions = 11;

/// Ten thousand words, of which some come much oftener than others, as in any language.
class Talk
{
public:
    QString sentence()
    {
        QString text;
        const int words = 3 + int(m_random() % 15);
        for (int i = 0; i < words; ++i)
            text += word() + u' ';
        return text.trimmed();
    }

    static QString wordNumber(int number)
    {
        static const QString syllables = QStringLiteral("bakelimonuparisotuvezidofugahejiko");
        QString word;
        for (int n = number + 7; n > 0; n /= 17)
            word += syllables.mid(n % 17 * 2, 2);
        return word;
    }

private:
    QString word()
    {
        const double share = double(m_random()) / double(std::mt19937::max());
        return wordNumber(int(std::pow(share, 4) * 10000));
    }

    std::mt19937 m_random{20261123};
};

double milliseconds(const QElapsedTimer &time)
{
    return double(time.nsecsElapsed()) / 1e6;
}

void fill(HistoryFile &history, int messages)
{
    Talk talk;
    const QDateTime begin(QDate(2021, 1, 1), QTime(8, 0));
    std::vector<HistoryFile::Entry> entries;
    for (int i = 0; i < messages; ++i) {
        const QString name = QStringLiteral("Contact %1").arg(i * 7 % contacts);
        entries.push_back({{.address = QStringLiteral("10.0.0.%1").arg(i * 7 % contacts), .name = name},
                           {.time = begin.addSecs(i * 150LL), .writer = name, .text = talk.sentence()}});
        if (i == messages / 2)
            entries.back().message.text = QStringLiteral("the only zwetschgenknoedel of all");
        if (int(entries.size()) < batch && i + 1 < messages)
            continue;
        history.write(entries);
        entries.clear();
    }
}

QJsonObject asked(HistoryFile &history, const HistoryQuestion &question)
{
    std::vector<double> times;
    std::size_t found = 0;
    for (int i = 0; i < repetitions; ++i) {
        QElapsedTimer time;
        time.start();
        found = history.find(question).size();
        times.push_back(milliseconds(time));
    }
    const double first = times.front();
    std::ranges::sort(times);
    return {{"found", int(found)}, {"first", first}, {"median", times[times.size() / 2]}, {"max", times.back()}};
}

} // namespace

int main(int argc, char *argv[])
{
    const int messages = argc > 1 ? std::max(1000, std::atoi(argv[1])) : 1'000'000;
    const QTemporaryDir folder;
    QJsonObject result{{"messages", messages}};
    QElapsedTimer time;
    time.start();
    {
        HistoryFile history(folder.path());
        fill(history, messages);
    }
    result["filled_seconds"] = milliseconds(time) / 1000;
    result["file_mib"] = double(QFileInfo(HistoryFile::pathIn(folder.path())).size()) / (1024 * 1024);
    time.start();
    HistoryFile history(folder.path());
    result["opened"] = milliseconds(time);
    const QString often = Talk::wordNumber(0), seldom = Talk::wordNumber(9990);
    const auto one = history.numberOf({.address = QStringLiteral("10.0.0.42")});
    const QDateTime year(QDate(2022, 1, 1), QTime(0, 0));
    result["last_50_of_one"] = asked(history, {.conversation = one, .most = 50});
    result["often"] = asked(history, {.words = often});
    result["often_in_one"] = asked(history, {.words = often, .conversation = one});
    result["often_in_a_year"] = asked(history, {.words = often, .from = year, .until = year.addYears(1)});
    result["seldom"] = asked(history, {.words = seldom});
    result["once"] = asked(history, {.words = QStringLiteral("zwetschgenknoedel")});
    result["part"] = asked(history, {.words = QStringLiteral("schgenkno")});
    result["two_words"] = asked(history, {.words = often + u' ' + seldom});
    result["none"] = asked(history, {.words = QStringLiteral("nowhere")});
    result["short_part_of_no_word"] = asked(history, {.words = QString::fromUtf8("会议")});
    time.start();
    const std::size_t conversations = history.list().size();
    result["list"] = QJsonObject{{"conversations", int(conversations)}, {"ms", milliseconds(time)}};
    std::fputs(QJsonDocument(result).toJson().constData(), stdout);
    return 0;
}
