// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/rawform.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace zeph {

RAWform::RAWform(const Context &, Documents &, ComposerEditor &, QWidget *parent)
    : QWidget(parent, Qt::Window), m_total(new QLineEdit(this))
{
    setWindowTitle(u"Tumbo - the Thrustmaster key syntax, KD, KU and USB code generator"_s);
    m_total->setObjectName(u"TotalCombinedText"_s);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_total);
    connect(m_total, &QLineEdit::textChanged, this, &RAWform::totalCombinedTextChanged);
}

RAWform::~RAWform() = default;

} // namespace zeph
