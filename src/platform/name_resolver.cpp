#include "platform/name_resolver.h"

#include "platform/host_lookup.h"

#include <QHostAddress>
#include <QUrl>

#include <mutex>
#include <string>
#include <system_error>
#include <thread>

namespace nimb
{
namespace
{

/// As the system takes it, empty for what is no name.
std::string systemName(const QString &name)
{
    if (name.contains(QChar(u'\0')) || !QHostAddress(name).isNull())
        return {};
    return QUrl::toAce(name).toStdString();
}

} // namespace

/// What a question's thread knows of the resolver. It outlives the resolver as long as there are threads.
class HostNameResolver::Letterbox
{
public:
    explicit Letterbox(HostNameResolver &resolver) : m_resolver(&resolver) { }

    /// From any thread. Qt is touched only while the resolver is there: a late answer may come in the middle of the
    /// program's end.
    void post(quint64 question, std::optional<Ipv4Address> address)
    {
        const std::lock_guard lock(m_mutex);
        HostNameResolver *const resolver = m_resolver;
        if (!resolver)
            return;
        QMetaObject::invokeMethod(
            &resolver->m_context, [=] { resolver->answer(question, address); }, Qt::QueuedConnection);
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_resolver = nullptr;
    }

private:
    std::mutex m_mutex;
    HostNameResolver *m_resolver;
};

HostNameResolver::HostNameResolver() : m_letterbox(std::make_shared<Letterbox>(*this)) { }

HostNameResolver::~HostNameResolver()
{
    m_letterbox->close();
}

void HostNameResolver::resolve(const QString &name, Found found)
{
    const quint64 question = ++m_questions;
    m_waiting[question] = std::move(found);
    const std::string known = systemName(name);
    if (known.empty()) {
        m_letterbox->post(question, std::nullopt);
        return;
    }
    // QHostInfo would do, but a program that uses it waits at its end until the last lookup has come back.
    try {
        std::thread([letterbox = m_letterbox, question, known] {
            letterbox->post(question, lookUpHost(known));
        }).detach();
    } catch (const std::system_error &) {
        m_letterbox->post(question, std::nullopt);
    }
}

void HostNameResolver::answer(quint64 question, std::optional<Ipv4Address> address)
{
    const Found found = m_waiting.take(question);
    found(address);
}

} // namespace nimb
