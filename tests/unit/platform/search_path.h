// A search path of a test's own, with programs that write down how they were started.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

namespace nimb::test
{

/// While it lives, programs are looked for in its folder alone.
class SearchPath
{
public:
    SearchPath() { qputenv("PATH", m_folder.path().toUtf8()); }
    ~SearchPath() { qputenv("PATH", m_before); }
    SearchPath(const SearchPath &) = delete;
    SearchPath &operator=(const SearchPath &) = delete;

    QString file(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    /// script: a shell's, which runs in the folder and has the usual programs.
    void add(const char *name, const QByteArray &script) const
    {
        write(name, "#!/bin/sh\nPATH=/usr/bin:/bin\ncd '" + m_folder.path().toUtf8() + "'\n" + script);
    }
    /// Can be found but not started.
    void addBroken(const char *name) const { write(name, "#!/nowhere/at/all\n"); }

    bool has(const char *name) const { return QFile::exists(file(name)); }
    /// What a program has written, once it is there; to be written elsewhere and renamed.
    QByteArray waitFor(const char *name) const
    {
        if (!QTest::qWaitFor([&] { return has(name); }, 20000))
            ADD_FAILURE() << name << " was never written";
        QFile written(file(name));
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }

private:
    void write(const char *name, const QByteArray &content) const
    {
        QFile program(file(name));
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write(content);
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QTemporaryDir m_folder;
    QByteArray m_before = qgetenv("PATH");
};

} // namespace nimb::test
