// All that goes from one computer to another: what is offered here, and what others offer.
#pragma once

#include "files/file_offers.h"
#include "files/unfinished_files.h"

namespace nimb
{

/// One for all conversations.
struct FileTransfers {
    FileTransfers(const FileOffers::Parts &parts, FileFetcher &fetcher, SettingsStore &store)
        : offers(parts), received(fetcher), unfinished(received, store, parts.log, parts.timers)
    {
    }

    int underWay() const { return offers.underWay() + received.underWay(); }

    FileOffers offers;
    ReceivedFiles received;
    UnfinishedFiles unfinished;
};

} // namespace nimb
