// The network scan's rules: one question to an address that the automatic announcement does not reach.
#pragma once

#include "base/Common.h"
#include "base/main_log.h"
#include "base/name_resolver.h"
#include "people/search.h"
#include "protocol/address_text.h"

namespace nimb
{

/// The engine half of frmNetworkscan. The services must outlive the resolver's answers; the scan itself need not.
class NetworkScan
{
    Q_DECLARE_TR_FUNCTIONS(NetworkScan)

public:
    NetworkScan(const Common &common, Search &search, NameResolver &resolver, MainLog &log)
        : m_common(common), m_search(search), m_resolver(resolver), m_log(log)
    {
    }

    /// What the box offers to be edited: the own address.
    QString Form_Load() const { return addressText(m_common.ownIP); }
    /// The networks of this machine, for the dialog to offer their broadcast addresses.
    [[nodiscard]] std::vector<SearchedNetwork> networks() const { return m_search.networks(); }
    /// Asks the dotted address at once, broadcast addresses and such with zeros before a number included, or everybody
    /// in a range such as "192.168.2.0/24", or a name when its address has been found. The main log says where that
    /// cannot be. Blanks around the text do not count.
    void Command1_Click(const QString &typed);

private:
    struct Range {
        Ipv4Address address; ///< any one in it
        int prefix = 0;      ///< how many bits all of them share
    };
    static std::optional<Range> readRange(QStringView text);
    void ask(const Range &range, const QString &text) const;

    const Common &m_common;
    Search &m_search;
    NameResolver &m_resolver;
    MainLog &m_log;
};

} // namespace nimb
