// Views that keep nothing, for engines that are timed or run without end.
#pragma once

#include "recorders.h"

namespace nimb::test
{

/// Counts what is written, and is empty.
class SilentLog : public RichTextLog
{
public:
    qsizetype textLength() const override { return 0; }
    void setSelStart(qsizetype) override { }
    void setSelColor(Colour) override { }
    void setSelFont(const LogFont &) override { }
    void setSelContinues(bool) override { }
    void setSelCommand(const QString &) override { }
    void setSelMessage(const std::optional<LogMessage> &) override { }
    void setSelBold(bool) override { }
    void markNew() override { }
    void unmarkNew() override { }
    void setFate(int, MessageFate) override { }
    void setSelText(const QString &) override { ++pieces; }
    void setSelRtf(const QString &, const QString &) override { ++pieces; }
    void clear() override { }

    std::size_t pieces = 0;
};

/// A recorder of a view, but for its log.
template <class View> class Silent : public View
{
public:
    using View::View;
    RichTextLog &outtext() override { return silent; }

    SilentLog silent;
};

/// Counts what it is told.
class SilentNotifications : public Notifications
{
public:
    void add(const Notification &) override { ++rows; }
    void startTimer() override { ++starts; }
    void show(const Notice &) override { ++notices; }
    void withdraw(const NoticePlace &) override { }

    std::size_t rows = 0;
    std::size_t starts = 0;
    std::size_t notices = 0;
};

struct SilentViews {
    Silent<RecorderMainView> view;
    SilentNotifications notifications;
    PrivateFormsOf<Silent<RecorderPrivateView>> privateForms;
    ConferenceFormsOf<Silent<RecorderConferenceView>> conferenceForms;
};

} // namespace nimb::test
