// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/qt_dialogs.h"

#include "platform/colours.h"
#include "platform/core/paths.h"
#include "platform/selectpictureform.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <algorithm>

namespace zeph {

namespace {

// Width of a list, in pixels: as wide as its longest line, within reason. The margin is for the
// frame and a scroll bar.
constexpr int listMargin = 30;
constexpr int listLeast = 300;
constexpr int listMost = 700;

QMessageBox::StandardButton standardButton(BoxButton button)
{
    switch (button) {
    case BoxButton::Ok:
        return QMessageBox::Ok;
    case BoxButton::Cancel:
        return QMessageBox::Cancel;
    case BoxButton::Yes:
        return QMessageBox::Yes;
    case BoxButton::No:
        return QMessageBox::No;
    case BoxButton::Other:
        return QMessageBox::Open;
    }
    return QMessageBox::NoButton;
}

QMessageBox::Icon standardIcon(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::None:
        return QMessageBox::NoIcon;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Stop:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

BoxButton escapeButton(const Box &box)
{
    for (const BoxButton button : { BoxButton::Cancel, BoxButton::No }) {
        if (box.buttons.contains(button)) {
            return button;
        }
    }
    return box.buttons.value(0, BoxButton::Ok);
}

void showCustomColours(const CustomColours &colours)
{
    for (size_t i = 0; i < colours.size(); ++i) {
        QColorDialog::setCustomColor(int(i), toColor(colours[i]));
    }
}

CustomColours customColoursShown()
{
    CustomColours colours;
    for (size_t i = 0; i < colours.size(); ++i) {
        colours[i] = fromColor(QColorDialog::customColor(int(i)));
    }
    return colours;
}

} // namespace

QStringList nameFilters(const QString &filter)
{
    const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // The toolkit takes the last bracket for the patterns, so the brackets of the caption go.
        static const QRegularExpression patternsAtEnd(uR"(\s*\([^()]*\*[^()]*\)\s*$)"_s);
        const QString caption = QString(parts[i]).remove(patternsAtEnd);
        QString patterns = parts[i + 1];
        patterns.replace(u';', u' ');
        if (patterns == u"*.*") {
            patterns = u"*"_s;
        }
        filters.append(u"%1 (%2)"_s.arg(caption.trimmed(), patterns));
    }
    return filters.isEmpty() ? QStringList{ u"All files (*)"_s } : filters;
}

QtDialogs::QtDialogs(QWidget *parent) : m_parent(parent) { }

QWidget *QtDialogs::parentNow() const
{
    QWidget *active = QApplication::activeModalWidget();
    if (!active) {
        active = QApplication::activeWindow();
    }
    return active ? active : m_parent.data();
}

BoxButton QtDialogs::box(const Box &box)
{
    QMessageBox window(parentNow());
    window.setWindowTitle(box.title);
    window.setTextFormat(Qt::PlainText);
    window.setText(box.text);
    window.setIcon(standardIcon(box.icon));
    for (qsizetype i = 0; i < box.buttons.size(); ++i) {
        QPushButton *button = window.addButton(standardButton(box.buttons[i]));
        if (i < box.captions.size()) {
            button->setText(box.captions[i]);
        }
    }
    window.setDefaultButton(standardButton(box.defaultButton));
    const BoxButton escape = escapeButton(box);
    window.setEscapeButton(standardButton(escape));
    if (!box.tick.isEmpty()) {
        auto *tick = new QCheckBox(box.tick);
        tick->setObjectName(u"Tick"_s);
        window.setCheckBox(tick);
    }
    const int answer = window.exec();
    if (window.checkBox() && box.ticked) {
        box.ticked(window.checkBox()->isChecked());
    }
    for (const BoxButton button : box.buttons) {
        if (standardButton(button) == answer) {
            return button;
        }
    }
    return escape;
}

std::optional<QString> QtDialogs::chosenFile(QFileDialog &dialog, const FileRequest &request) const
{
    dialog.setNameFilters(nameFilters(request.filter));
    dialog.setDefaultSuffix(request.defaultExtension);
    const QString folder = existingPath(request.folder);
    if (!folder.isEmpty()) {
        dialog.setDirectory(folder);
    }
    if (!request.name.isEmpty()) {
        dialog.selectFile(nativeSeparators(request.name));
    }
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return nativeSeparators(dialog.selectedFiles().value(0));
}

std::optional<QString> QtDialogs::openFile(const FileRequest &request)
{
    if (request.showsPictures) {
        SelectPictureForm dialog(parentNow(), request.title);
        return chosenFile(dialog, request);
    }
    QFileDialog dialog(parentNow(), request.title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosenFile(dialog, request);
}

std::optional<QString> QtDialogs::saveFile(const FileRequest &request)
{
    QFileDialog dialog(parentNow(), request.title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    return chosenFile(dialog, request);
}

std::optional<QString> QtDialogs::chooseFolder(const QString &title, const QString &start)
{
    QFileDialog dialog(parentNow(), title, existingPath(start));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return nativeSeparators(dialog.selectedFiles().value(0));
}

std::optional<ColorRef> QtDialogs::chooseColour(ColorRef start)
{
    CustomColours before{};
    if (customColours.read) {
        before = customColours.read();
        showCustomColours(before);
    }
    QColorDialog dialog(toColor(start), parentNow());
    const bool isChosen = dialog.exec() == QDialog::Accepted;
    // Colours that were mixed stay the user's, whether one of them was taken or not.
    if (const CustomColours after = customColoursShown(); customColours.keep && after != before) {
        customColours.keep(after);
    }
    return isChosen ? std::optional(fromColor(dialog.selectedColor())) : std::nullopt;
}

std::optional<CharFormat> QtDialogs::chooseFont(const CharFormat &start)
{
    QFont font;
    if (!start.family.isEmpty()) {
        font.setFamily(start.family);
    }
    if (start.pointSize > 0) {
        font.setPointSizeF(start.pointSize);
    }
    font.setBold(start.bold);
    font.setItalic(start.italic);
    font.setUnderline(start.underline);
    font.setStrikeOut(start.strike);
    QFontDialog dialog(font, parentNow());
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    font = dialog.selectedFont();
    return CharFormat{ .family = font.family(),
                       .pointSize = font.pointSizeF(),
                       .bold = font.bold(),
                       .italic = font.italic(),
                       .underline = font.underline(),
                       .colour = start.colour,
                       .strike = font.strikeOut() };
}

std::optional<qsizetype> QtDialogs::chooseFromList(const QString &title, const QStringList &lines)
{
    QDialog dialog(parentNow());
    dialog.setWindowTitle(title);
    auto *list = new QListWidget(&dialog);
    list->setObjectName(u"List1"_s);
    list->setAccessibleName(title);
    list->addItems(lines);
    list->setCurrentRow(0);
    list->setMinimumWidth(std::clamp(list->sizeHintForColumn(0) + listMargin, listLeast, listMost));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!lines.isEmpty());
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(list);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(list, &QListWidget::itemActivated, &dialog, &QDialog::accept);
    if (dialog.exec() != QDialog::Accepted || list->currentRow() < 0) {
        return std::nullopt;
    }
    return list->currentRow();
}

} // namespace zeph
