// The network doctor: why somebody does not appear, and what to do.
#pragma once

#include "doctor/doctor.h"

#include <QDialog>

#include <map>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QTimer;
class QTreeWidget;

namespace nimb
{

/// Modeless, destroyed when it is closed. Examines as soon as it is there.
class frmDoctor : public QDialog, public DoctorView
{
    Q_OBJECT

public:
    frmDoctor(const Doctor::Parts &parts, QWidget *parent);
    ~frmDoctor() override;

    void showFinding(const Finding &finding) override;
    void examined() override;

private:
    struct Line {
        QLabel *picture = nullptr;
        QLabel *sentence = nullptr;
        QLabel *advice = nullptr;
    };

    void buildControls();
    QWidget *findingsPart();
    QWidget *contactPart();
    QWidget *datagramsPart();
    Line addLine(QGridLayout &grid, Check check);
    void connectControls();
    /// Those of the list, where they have changed; who is chosen stays so.
    void fillContacts();
    void showDatagrams();
    void showLines(const std::vector<TraceLine> &lines);

    void examineBtn_Click();
    void askContactBtn_Click();
    void copyReportBtn_Click();

    std::map<Check, Line> m_lines;
    QComboBox *contactCombo = nullptr;
    QPushButton *askContactBtn = nullptr;
    QTreeWidget *datagramList = nullptr;
    QCheckBox *showTextsBox = nullptr;
    QLabel *dropsLabel = nullptr;
    QPushButton *examineBtn = nullptr;
    QPushButton *copyReportBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    QTimer *m_refresh = nullptr;
    std::vector<TraceLine> m_shownLines;
    bool m_contactsHaveChanged = true; ///< since contactCombo was filled
    Doctor m_doctor;
};

} // namespace nimb
