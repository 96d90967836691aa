// The About box.
#pragma once

#include "base/prompts.h"
#include "base/system_information.h"

#include <QDialog>

class QHBoxLayout;
class QPushButton;

namespace nimb
{

/// Made with new and shown by its opener; dies when it is closed. What it is given must outlive it.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    /// version: of the program, as it is shown.
    frmAbout(SystemInformation &system, Prompts &prompts, const QString &version, QWidget *parent);

private:
    QHBoxLayout *buildTexts(const QString &version);
    void buildControls(const QString &version);
    void connectControls();
    void cmdSysInfo_Click();

    SystemInformation &m_system;
    Prompts &m_prompts;
    QPushButton *cmdOK = nullptr;
    QPushButton *cmdSysInfo = nullptr;
};

} // namespace nimb
