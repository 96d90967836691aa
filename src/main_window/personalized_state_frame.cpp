#include "main_window/personalized_state_frame.h"

#include "widgets/form_layout.h"
#include "widgets/form_text.h"
#include "widgets/pictures.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace nimb
{

PersonalizedStateFrame::PersonalizedStateFrame(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("PersonalizedStateFrame"));
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    buildControls();
    connect(PersonalizedOkbtn, &QPushButton::clicked, this, &PersonalizedStateFrame::PersonalizedOkbtn_Click);
    connect(PersonalizedMessageText, &QLineEdit::returnPressed, PersonalizedOkbtn, &QPushButton::click);
    connect(m_cancel, &QPushButton::clicked, this, &PersonalizedStateFrame::cancelled);
    hide();
}

void PersonalizedStateFrame::buildControls()
{
    auto *const base = new QLabel(tr("&State:"), this);
    auto *const text = new QLabel(tr("Te&xt:"), this);
    ImageComboPers = named(new QComboBox(this), "ImageComboPers");
    for (const BaseState state : {BaseState::online, BaseState::busy, BaseState::away})
        ImageComboPers->addItem(statePicture(pictureOf(state)), baseName(state), QVariant::fromValue(state));
    PersonalizedMessageText = named(new QLineEdit(this), "PersonalizedMessageText");
    PersonalizedOkbtn = named(new QPushButton(tr("OK"), this), "PersonalizedOkbtn");
    m_cancel = new QPushButton(tr("Cancel"), this);
    nameCombo(*ImageComboPers, tr("State"));
    base->setBuddy(ImageComboPers);
    text->setBuddy(PersonalizedMessageText);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(PersonalizedOkbtn);
    buttons->addWidget(m_cancel);
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(form_layout::margin, form_layout::margin, form_layout::margin, form_layout::margin);
    grid->setSpacing(form_layout::spacing);
    grid->addWidget(base, 0, 0);
    grid->addWidget(ImageComboPers, 0, 1);
    grid->addWidget(text, 1, 0);
    grid->addWidget(PersonalizedMessageText, 1, 1);
    grid->addLayout(buttons, 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

void PersonalizedStateFrame::ask()
{
    show();
    raise();
    focusText();
}

void PersonalizedStateFrame::clearText()
{
    PersonalizedMessageText->clear();
}

void PersonalizedStateFrame::focusText()
{
    PersonalizedMessageText->setFocus();
}

void PersonalizedStateFrame::PersonalizedOkbtn_Click()
{
    Q_EMIT chosen(ImageComboPers->currentData().value<BaseState>(), PersonalizedMessageText->text());
}

void PersonalizedStateFrame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelled();
    else
        QFrame::keyPressEvent(event);
}

} // namespace nimb
