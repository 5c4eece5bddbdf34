// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/frm_createpackage.h"

#include "platform/dialogs.h"
#include "ui_frm_createpackage.h"

namespace zeph {

Frm_CreatePackage::Frm_CreatePackage(const Context &context, const PackageFields &preset,
                                     QWidget *parent)
    : QDialog(parent), m_context(context), m_ui(std::make_unique<Ui::Frm_CreatePackage>())
{
    m_ui->setupUi(this);
    m_texts = ControlArray<QLineEdit>(this, u"TextPackage"_s);
    m_texts[0]->setText(preset.name);
    for (int i = 0; i < packageFiles; ++i) {
        m_texts[i + 1]->setText(preset.files[size_t(i)]);
    }
    m_ui->CheckForZip->setChecked(preset.wantsZip);
    showHint({});
    ControlArray<QPushButton>(this, u"CMD_locate"_s)
        .connect(this, &QPushButton::clicked, [this](int index) {
            guarded(m_context.dialogs, [this, index] { locate(index); })();
        });
    connect(m_ui->cmdCreate, &QPushButton::clicked, this, &Frm_CreatePackage::createWanted);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &Frm_CreatePackage::reject);
}

Frm_CreatePackage::~Frm_CreatePackage() = default;

PackageFields Frm_CreatePackage::fields() const
{
    PackageFields fields{ .name = m_texts[0]->text(), .wantsZip = m_ui->CheckForZip->isChecked() };
    for (int i = 0; i < packageFiles; ++i) {
        fields.files[size_t(i)] = m_texts[i + 1]->text();
    }
    return fields;
}

void Frm_CreatePackage::showHint(const QString &hint)
{
    m_ui->lblHint->setText(hint);
    m_ui->lblHint->setVisible(!hint.isEmpty());
}

void Frm_CreatePackage::focusName()
{
    m_texts[0]->setFocus();
}

void Frm_CreatePackage::locate(int index)
{
    const PackageRow &row = packageRows()[size_t(index)];
    QLineEdit &text = *m_texts[index + 1];
    const bool isProfile = PackageFile(index) == PackageFile::Profile;
    const QString usual = isProfile
        ? withClosingSeparator(m_context.paths.hotasFolder + u"Profiles"_s)
        : m_context.paths.filesFolder();
    const auto chosen = m_context.dialogs.openFile(
        { .title = QString::fromUtf16(row.title),
          .filter = QString::fromUtf16(row.filter),
          .folder = text.text().isEmpty() ? usual : folderOf(text.text()),
          .name = nameOf(text.text()) });
    if (chosen) {
        text.setText(*chosen);
    }
}

} // namespace zeph
