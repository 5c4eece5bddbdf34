// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/informationwindow.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/rtf.h"
#include "platform/core/text1252.h"
#include "platform/dialogs.h"
#include "ui_informationwindow.h"

namespace zeph {

Expected<RichText, QString> readInformation(const QString &path)
{
    const auto bytes = readWholeFile(existingPath(path));
    if (!bytes) {
        return Unexpected<QString>(bytes.error().reason);
    }
    if (!bytes->startsWith("{\\rtf")) {
        return RichText::plain(fromText1252(*bytes).remove(u'\r'));
    }
    auto text = readRtf(*bytes);
    if (!text) {
        return Unexpected<QString>(text.error().reason);
    }
    return std::move(*text);
}

InformationWindow::InformationWindow(Dialogs &dialogs, QWidget *parent)
    : QDialog(parent, Qt::Window), m_dialogs(dialogs),
      m_ui(std::make_unique<Ui::InformationWindow>())
{
    m_ui->setupUi(this);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &InformationWindow::close);
}

InformationWindow::~InformationWindow() = default;

bool InformationWindow::showFile(const QString &path, const QString &title)
{
    if (!fileExists(path)) {
        m_dialogs.tell(u"Missing file"_s,
                       u"I can't find the information that you asked for. It should be located "
                       "here: "_s
                           + path,
                       BoxIcon::Exclamation);
        return false;
    }
    const auto text = readInformation(path);
    if (!text) {
        m_dialogs.tell(u"Can't read file"_s,
                       u"I found "_s + path + u", but I can't make head or tail of it: "_s
                           + text.error(),
                       BoxIcon::Exclamation);
        return false;
    }
    m_ui->txtInformation->setRichText(*text);
    m_ui->txtInformation->select(0, 0);
    setWindowTitle(title);
    return true;
}

} // namespace zeph
