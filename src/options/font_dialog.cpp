#include "options/font_dialog.h"

#include "log/log_font.h"
#include "widgets/dialog_parts.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QListWidget>
#include <QSpinBox>

namespace nimb
{
namespace
{

using form_layout::groupDistance;
using form_layout::margin;
using form_layout::spacing;

/// A row's family; its text may say more.
constexpr int familyRole = Qt::UserRole;
constexpr int lettersOfFamily = 30; ///< of most names

QLabel *caption(const QString &text, QWidget *of)
{
    auto *const label = new QLabel(text, of->parentWidget());
    label->setBuddy(of);
    return label;
}

} // namespace

LogFontDialog::LogFontDialog(const LogFont &font, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("font_dialog"));
    setWindowTitle(tr("Font of the logs"));
    buildControls();
    preset(font);
    connect(m_family, &QListWidget::currentItemChanged, this, &LogFontDialog::showSample);
    connect(m_family, &QListWidget::itemDoubleClicked, this, &LogFontDialog::accept);
    connect(m_size, &QSpinBox::valueChanged, this, &LogFontDialog::showSample);
    connect(m_bold, &QCheckBox::toggled, this, &LogFontDialog::showSample);
    connect(m_italic, &QCheckBox::toggled, this, &LogFontDialog::showSample);
    showSample();
}

void LogFontDialog::buildControls()
{
    m_family = named(new QListWidget(this), "font_family");
    m_family->setMinimumSize(qMax(240, lettersOfFamily * m_family->fontMetrics().averageCharWidth()), 200);
    m_family->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // what is longer ends in an ellipsis
    m_family->setAccessibleName(tr("Family"));
    m_size = named(new QSpinBox(this), "font_size");
    m_size->setRange(log_font_size::smallest, log_font_size::largest);
    m_size->setSuffix(tr(" points"));
    m_bold = named(new QCheckBox(tr("&Bold"), this), "font_bold");
    m_italic = named(new QCheckBox(tr("&Italic"), this), "font_italic");
    m_sample = named(new QLabel(tr("Ann: Good morning!"), this), "font_sample");
    m_sample->setAlignment(Qt::AlignCenter);
    // The largest font must not make the dialog jump.
    m_sample->setMinimumHeight(56);
    m_sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *const buttons = new QDialogButtonBox(this);
    QPushButton *const ok = addButton(*buttons, "font_ok", tr("OK"), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    addButton(*buttons, "font_cancel", tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &LogFontDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LogFontDialog::reject);

    auto *const side = new QVBoxLayout;
    side->setSpacing(spacing);
    side->addWidget(m_size);
    side->addSpacing(groupDistance - spacing);
    side->addWidget(m_bold);
    side->addWidget(m_italic);
    side->addStretch(1);
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(groupDistance);
    grid->setVerticalSpacing(spacing);
    grid->addWidget(caption(tr("&Family:"), m_family), 0, 0);
    grid->addWidget(caption(tr("&Size:"), m_size), 0, 1);
    grid->addWidget(m_family, 1, 0);
    grid->addLayout(side, 1, 1);
    grid->addWidget(m_sample, 2, 0, 1, 2);
    grid->addWidget(buttons, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
}

void LogFontDialog::preset(const LogFont &font)
{
    listFamilies(font.face);
    m_size->setValue(font.size);
    m_bold->setChecked(font.bold());
    m_italic->setChecked(font.italic());
}

void LogFontDialog::listFamilies(const QString &chosen)
{
    for (const QString &family : QFontDatabase::families()) {
        if (QFontDatabase::isPrivateFamily(family))
            continue;
        auto *const row = new QListWidgetItem(family, m_family);
        row->setData(familyRole, family);
        if (family.compare(chosen, Qt::CaseInsensitive) == 0)
            m_family->setCurrentItem(row);
    }
    if (!m_family->currentItem()) {
        const bool installed = QFontDatabase::hasFamily(chosen);
        m_family->insertItem(0, installed ? chosen : tr("%1 (not installed)").arg(chosen));
        m_family->item(0)->setData(familyRole, chosen);
        m_family->setCurrentRow(0);
    }
    m_family->scrollToItem(m_family->currentItem(), QAbstractItemView::PositionAtCenter);
}

LogFont LogFontDialog::chosenFont() const
{
    QString style;
    if (m_bold->isChecked())
        style += QLatin1Char('b');
    if (m_italic->isChecked())
        style += QLatin1Char('i');
    return {m_family->currentItem()->data(familyRole).toString(), static_cast<std::int16_t>(m_size->value()), style};
}

void LogFontDialog::showSample()
{
    m_sample->setFont(fontOf(chosenFont()));
}

} // namespace nimb
