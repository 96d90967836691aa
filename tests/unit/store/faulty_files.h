// A layer between SQLite and the disk that fails, or does something else, at a chosen call.
#pragma once

#include <functional>
#include <string>

struct sqlite3_vfs;

namespace nimb::test
{

/// While it lives, every database of this process goes through it. One object at a time.
class FaultyFiles
{
public:
    FaultyFiles();
    ~FaultyFiles();
    FaultyFiles(const FaultyFiles &) = delete;
    FaultyFiles &operator=(const FaultyFiles &) = delete;

    enum class Lasting { once, forGood };

    /// The n-th call from now on (counted from 1) fails, or all from there on do; a failing write returns writeCode,
    /// and systemError is what the system is said to have given as its reason.
    void failAt(int n, Lasting lasting, int writeCode, int systemError = 0);
    /// Before the n-th call from now on this is done; a write has put half of its bytes into the file by then.
    void doAt(int n, std::function<void()> action);
    void heal();

    /// Whether the chosen call has come.
    bool happened() const { return m_calls >= m_at && m_at > 0; }

    /// Used by the layer: counts one call and tells whether it has to fail.
    bool mustFail(const std::function<void()> &halfOfIt = {});
    int writeCode() const { return m_writeCode; }
    int systemError() const { return happened() ? m_systemError : 0; }
    sqlite3_vfs *real() const { return m_real; }

private:
    sqlite3_vfs *m_real;
    int m_calls = 0;
    int m_at = 0;
    Lasting m_lasting = Lasting::once;
    int m_writeCode = 0;
    int m_systemError = 0;
    std::function<void()> m_action;
};

} // namespace nimb::test
