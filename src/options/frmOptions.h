// The options dialog.
#pragma once

#include "base/prompts.h"
#include "options/options.h"
#include "options/picture_file.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMimeData;
class QPushButton;
class QRadioButton;

namespace nimb
{

class AvatarPicture;

class frmOptions : public QDialog
{
    Q_OBJECT

public:
    /// The prompts outlive the dialog.
    frmOptions(const OptionValues &values, Prompts &prompts, QWidget *parent);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildControls();
    QGroupBox *makeSounds();
    QGroupBox *makePrivateWindows();
    QGroupBox *makeProgram();
    QGroupBox *makeFont();
    QGroupBox *makeAvatar();
    void connectControls();
    void Form_Load();

    void CmdOK_Click();
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

    OptionValues m_values;
    Prompts &m_prompts;
    LogFont m_font;
    QByteArray m_loadedPicture; ///< avatarBytes bytes, or none
    QString m_folder;           ///< of the polled pictures

    QCheckBox *localbuzz = nullptr;
    QCheckBox *remotebuzz = nullptr;
    QCheckBox *DisableNotify = nullptr;
    QRadioButton *showminimized = nullptr;
    QRadioButton *showontop = nullptr;
    QCheckBox *statusonprivate = nullptr;
    QCheckBox *PrivateDestroyonClose = nullptr;
    QCheckBox *disablelivetype = nullptr;
    QCheckBox *XtoMinimizeCheck = nullptr;
    QLineEdit *UDPPorttxt = nullptr;
    QLabel *m_fontSample = nullptr;
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
