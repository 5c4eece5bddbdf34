// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layoutsave.h"

#include "layouts/files/layout_store.h"
#include "ui_layoutsave.h"

namespace zeph {

LayoutSave::LayoutSave(const QStringList &names, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::LayoutSave>())
{
    m_ui->setupUi(this);
    m_ui->Combo1->addItems(names);
    m_ui->Combo1->clearEditText();
    m_ui->Combo1->lineEdit()->setObjectName(u"Combo1Edit"_s);
    m_ui->Combo1->lineEdit()->setAccessibleName(m_ui->Combo1->accessibleName());
    m_ui->Combo1->setFocus();
    // Room for the longest hint, which comes while the user types.
    m_ui->LabelHint->setMinimumHeight(2 * m_ui->LabelHint->fontMetrics().lineSpacing());
    connect(m_ui->Combo1, &QComboBox::editTextChanged, this, &LayoutSave::judge);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &LayoutSave::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &LayoutSave::reject);
}

LayoutSave::~LayoutSave() = default;

QString LayoutSave::name() const
{
    return m_ui->Combo1->currentText().trimmed();
}

/// A name that no file can have is told at once. An empty one is no mistake: it saves nothing.
void LayoutSave::judge()
{
    const auto checked = checkLayoutName(name());
    const bool isGood = name().isEmpty() || checked;
    m_ui->cmdOK->setEnabled(isGood);
    m_ui->LabelHint->setText(isGood ? QString() : checked.error());
}

void LayoutSave::setTexts(const QString &title, const QString &label)
{
    setWindowTitle(title);
    m_ui->LabelName->setText(label);
}

LayoutSaveText::LayoutSaveText(const QStringList &names, QWidget *parent)
    : LayoutSave(names, parent)
{
    setObjectName(u"LayoutSaveText"_s);
    setTexts(u"Save the layout with its texts"_s,
             u"Enter a name for the layout with text to be saved as:"_s);
}

} // namespace zeph
