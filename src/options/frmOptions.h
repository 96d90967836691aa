// The options dialog.
#pragma once

#include "base/prompts.h"
#include "options/options.h"
#include "options/picture_file.h"

#include <QDialog>

#include <vector>

class QAbstractButton;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMimeData;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace nimb
{

class AvatarPicture;
class FittingArea;

class frmOptions : public QDialog
{
    Q_OBJECT

public:
    /// The prompts outlive the dialog.
    frmOptions(OptionValues values, Prompts &prompts, QWidget *parent);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildControls();
    FittingArea *makeArea(QVBoxLayout *left, QVBoxLayout *right);
    QGroupBox *makeYou();
    QGroupBox *makeSounds();
    QGroupBox *makePrivateWindows();
    QGroupBox *makeProgram();
    QGroupBox *makeNotices();
    QGroupBox *makeHistory();
    QGroupBox *makeFont();
    QGroupBox *makeAvatar();
    /// Adds the options of that group, the choices between two buttons first.
    void addOptions(OptionGroup group, QVBoxLayout &column);
    void addOption(const OptionRow &row, QVBoxLayout &column);
    void connectControls();
    void Form_Load();

    void CmdOK_Click();
    void removeStateBtn_Click();
    void showStates();
    void font_btn_Click();
    void LoadAvatarbtn_Click();
    void PolledPicturebox_Click();
    void Folderbtn_Click();
    /// Takes a picture or the first file of what was dropped or pasted; false when there is neither.
    bool takePicture(const QMimeData &given);
    void takePicture(const ReadPicture &read);
    void showFont();
    void showFolder();
    QRadioButton *avatarButton(AvatarChoice choice) const;
    OptionControls controls() const;

    /// How a row of the options is shown.
    struct ShownOption {
        const OptionRow *row;
        QAbstractButton *box;
    };

    OptionValues m_values;
    Prompts &m_prompts;
    LogFont m_font;
    std::vector<int> m_removedStates;
    QByteArray m_loadedPicture; ///< avatarBytes bytes, or none
    QString m_folder;           ///< of the polled pictures

    std::vector<ShownOption> m_options;
    QLineEdit *UDPPorttxt = nullptr;
    QComboBox *ownAddressCombo = nullptr;
    QComboBox *languageCombo = nullptr;
    QCheckBox *autostartBox = nullptr;
    QLabel *m_fontSample = nullptr;
    QLineEdit *nicknameText = nullptr;
    QComboBox *statesCombo = nullptr;
    QComboBox *keepHistoryCombo = nullptr;
    QPushButton *removeStateBtn = nullptr;
    QPushButton *font_btn = nullptr;
    QRadioButton *Option1 = nullptr;
    QRadioButton *Option2 = nullptr;
    QRadioButton *Option3 = nullptr;
    AvatarPicture *Picture2 = nullptr;
    QPushButton *LoadAvatarbtn = nullptr;
    QComboBox *PolledPicturebox = nullptr;
    QPushButton *Folderbtn = nullptr;
    QPushButton *CmdOK = nullptr;
    QPushButton *Command1 = nullptr;
};

} // namespace nimb
