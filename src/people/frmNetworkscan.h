// The network scan's dialog.
#pragma once

#include "people/network_scan.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace nimb
{

/// Made with new and shown by its opener; dies when it is closed.
class frmNetworkscan : public QDialog
{
    Q_OBJECT

public:
    frmNetworkscan(const NetworkScan &scan, QWidget *parent);

Q_SIGNALS:
    /// There is no network to scan, and the user wants to know why; the dialog has been closed.
    void doctorWanted();

private:
    void buildControls();
    QWidget *makeNoNetwork(QWidget *parent);
    void connectControls();
    void Form_Load();
    void Command1_Click();
    void networksCombo_Click(int position);

    NetworkScan m_scan;
    QLineEdit *Text1 = nullptr;
    QComboBox *networksCombo = nullptr; ///< hidden where there is no network
    QWidget *m_noNetwork = nullptr;     ///< stands there instead
    QPushButton *Command1 = nullptr;
    QPushButton *Command2 = nullptr;
};

} // namespace nimb
