// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/frmtextboxsize.h"

#include "layouts/files/sheet_kinds.h"
#include "layouts/window/sheet_model.h"
#include "ui_frmtextboxsize.h"

#include <array>
#include <cmath>

namespace zeph {

namespace {

struct SizeField {
    QStringView name;
    float LayoutTextBox::*member;
    int least;
};

/// Farther than any sheet is wide or high.
constexpr int farthest = 32767;

constexpr std::array fields = {
    SizeField{ u"Left", &LayoutTextBox::Left, -farthest },
    SizeField{ u"Top", &LayoutTextBox::Top, -farthest },
    SizeField{ u"Width", &LayoutTextBox::Width, leastBoxWidth },
    SizeField{ u"Height", &LayoutTextBox::Height, leastBoxHeight },
};

QString asText(float number)
{
    return QString::number(std::floor(double(number)));
}

} // namespace

FrmTextBoxSize::FrmTextBoxSize(SheetModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_ui(std::make_unique<Ui::FrmTextBoxSize>())
{
    m_ui->setupUi(this);
    connect(m_ui->cmdApply, &QPushButton::clicked, this, &FrmTextBoxSize::apply);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(&m_model, &SheetModel::selectedChanged, this, &FrmTextBoxSize::follow);
    connect(&m_model, &SheetModel::changed, this, &FrmTextBoxSize::showBox);
    follow(m_model.selected());
}

FrmTextBoxSize::~FrmTextBoxSize() = default;

void FrmTextBoxSize::follow(int box)
{
    m_previous = m_current;
    m_current = box;
    m_shown = {};
    const auto words = [this](int number) {
        return number < 0 ? QString()
                          : sheetKind(m_model.sheet().kind).boxNames[size_t(number)].toString();
    };
    m_ui->LabelBox->setText(box < 0 ? u"No textbox is selected."_s : words(box));
    m_ui->LabelPrevious->setText(
        m_previous < 0 ? u"Previous textbox"_s : u"Previous textbox (%1)"_s.arg(words(m_previous)));
    m_ui->cmdApply->setEnabled(box >= 0);
    showBox();
}

void FrmTextBoxSize::showBox()
{
    const auto boxOf = [this](int number) {
        return number < 0 ? nullptr : &m_model.sheet().boxes[size_t(number)];
    };
    const LayoutTextBox *current = boxOf(m_current);
    const LayoutTextBox *previous = boxOf(m_previous);
    for (const SizeField &field : fields) {
        auto *edit = findChild<QLineEdit *>(u"Text"_s + field.name.toString());
        // What somebody is typing stays while the box does.
        if (!current || m_shown.*field.member != current->*field.member || edit->text().isEmpty()) {
            edit->setText(current ? asText(current->*field.member) : QString());
        }
        findChild<QLabel *>(u"Previous"_s + field.name.toString())
            ->setText(previous ? asText(previous->*field.member) : QString());
    }
    m_shown = current ? *current : LayoutTextBox();
}

void FrmTextBoxSize::apply()
{
    Sheet sheet = m_model.sheet();
    LayoutTextBox &box = sheet.boxes[size_t(m_current)];
    for (const SizeField &field : fields) {
        auto *edit = findChild<QLineEdit *>(u"Text"_s + field.name.toString());
        bool isNumber = false;
        const double typed = edit->text().trimmed().toDouble(&isNumber);
        if (isNumber) {
            box.*field.member =
                float(std::floor(std::clamp(typed, double(field.least), double(farthest))));
        }
        edit->setText(asText(box.*field.member));
    }
    m_model.change(std::move(sheet));
}

} // namespace zeph
