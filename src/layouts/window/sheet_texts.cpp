// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_texts.h"

#include "documents/documents.h"
#include "layouts/analysis/box_colours.h"
#include "layouts/analysis/box_texts.h"
#include "layouts/draw/overflow.h"
#include "platform/clock.h"
#include "platform/core/file_io.h"
#include "platform/core/text1252.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings_files.h"

#include <QFileInfo>
#include <QTimer>

namespace zeph {

namespace {

/// While somebody types, the texts are not compared at every key.
constexpr int judgeAfterMs = 300;

QByteArray bytesOf(QString text)
{
    return toText1252(text.replace(u'\n', u"\r\n"_s));
}

} // namespace

SheetTexts::SheetTexts(const SheetDesk &desk, Documents &documents, const MacroTable &macros)
    : QObject(&desk.window), m_desk(desk), m_documents(documents), m_macros(macros),
      m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(judgeAfterMs);
    connect(m_timer, &QTimer::timeout, this, &SheetTexts::judge);
    const auto soon = [this] {
        m_timer->start();
    };
    connect(&documents.joystick(), &Document::edited, this, soon);
    connect(&documents.joystick(), &Document::replaced, this, soon);
    connect(&documents.joystick(), &Document::written, this, soon);
}

/// By-products of an analysis, which other programs may look at. They are not worth waiting for the
/// disk.
void SheetTexts::writeTemporaries(const AnalysedFile &file, const QString &text) const
{
    const QString folder = m_desk.context.paths.tempFolder();
    const std::pair<QStringView, const QString &> files[] = { { u"F2align.txt", text },
                                                              { u"F2align2.txt", file.aligned },
                                                              { u"tmpJoy2.txt", file.lines } };
    FileBatch batch;
    for (const auto &[name, contents] : files) {
        if (const auto added = batch.add(folder + name.toString(), bytesOf(contents)); !added) {
            tellNotKept(m_desk.context.status, added.error());
            return;
        }
    }
    if (const auto failed = batch.commit(); !failed.empty()) {
        tellNotKept(m_desk.context.status, failed.front());
    }
}

std::optional<Sheet> SheetTexts::analysed(Sheet sheet, Boxes boxes)
{
    const QString text = m_documents.joystick().text();
    const auto file = AnalyseAndExtract(text);
    if (!file) {
        return std::nullopt;
    }
    for (const QString &status : extractionStatuses() + analysisStatuses(m_desk.kind)) {
        m_desk.say(status);
    }
    writeTemporaries(*file, text);
    const FileCaption caption{ m_documents.joystick().path(), m_desk.context.clock.now() };
    const QStringList texts = ::zeph::AnalyseJoystickFile(m_desk.kind, *file, caption);
    const qsizetype count = boxes == Boxes::All ? texts.size() : analysedBoxCount(m_desk.kind);
    for (qsizetype i = 0; i < count; ++i) {
        sheet.boxes[size_t(i)].text = RichText::plain(texts[i], m_desk.plain());
    }
    m_analysedFrom = text;
    m_layoutWritten.reset();
    judge();
    return sheet;
}

void SheetTexts::AnalyseJoystickFile(Boxes boxes)
{
    if (auto sheet = analysed(m_desk.model.sheet(), boxes)) {
        m_desk.model.change(coloured(std::move(*sheet), false));
    }
}

void SheetTexts::AnalyseSelectedTextbox()
{
    const auto file = AnalyseAndExtract(m_documents.joystick().text());
    if (!file) {
        m_desk.context.dialogs.tell(
            u"I can't analyse an empty file buddy!"_s,
            u"The joystick file is empty, so there's nothing to analyse. Unless of course you have "
            "any emotional, marital, financial, sexual, or physical problems you'd like me to sort "
            "out for you .... "_s,
            BoxIcon::Exclamation);
        return;
    }
    const FileCaption caption{ m_documents.joystick().path(), m_desk.context.clock.now() };
    const auto text = AnalyseTextbox(m_desk.kind, m_desk.model.selected(), *file, caption);
    if (!text) {
        return;
    }
    writeTemporaries(*file, m_documents.joystick().text());
    m_desk.changeSelected([&](LayoutTextBox &box) {
        box.text = colouredBox(RichText::plain(*text, m_desk.plain()), false);
    });
}

RichText SheetTexts::colouredBox(const RichText &text, bool withUMD) const
{
    const ColourScheme colours = m_desk.context.settings.of<ColourSettings>().joystickScheme();
    RichText result = ApplyColours(m_desk.kind, text, { colours, m_desk.plain() });
    if (withUMD) {
        const auto styles = readLayoutStyles(settingsFilesOf(m_desk.context.paths).layoutsIni);
        result = ApplyUMDcolours(std::move(result), styles, colours.rem);
    }
    return result;
}

Sheet SheetTexts::coloured(Sheet sheet, bool withUMD) const
{
    for (LayoutTextBox &box : sheet.boxes) {
        if (box.Visible) {
            box.text = colouredBox(box.text, withUMD);
        }
    }
    return sheet;
}

void SheetTexts::applyToAll(bool withUMD)
{
    m_desk.model.change(coloured(m_desk.model.sheet(), withUMD));
}

void SheetTexts::applyToSelected(bool withUMD)
{
    m_desk.changeSelected([&](LayoutTextBox &box) { box.text = colouredBox(box.text, withUMD); });
}

void SheetTexts::fitAll()
{
    Sheet sheet = m_desk.model.sheet();
    fitAllTexts(sheet, m_desk.plain());
    m_desk.model.change(std::move(sheet));
}

void SheetTexts::fitSelected()
{
    m_desk.changeSelected([&](LayoutTextBox &box) { box.text = fittedText(box, m_desk.plain()); });
}

Sheet SheetTexts::withKeys(Sheet sheet) const
{
    const auto way = MacroNames(m_desk.settings().ShowKeys);
    if (way != MacroNames::Names) {
        const ShownKeys keys(m_macros);
        for (LayoutTextBox &box : sheet.boxes) {
            box.text = keys.shown(box.text, way);
        }
    }
    return sheet;
}

void SheetTexts::followLayout(const QDateTime &written)
{
    m_analysedFrom.reset();
    m_layoutWritten = written;
    judge();
}

void SheetTexts::judge()
{
    bool isStale = false;
    if (m_desk.kind == SheetKind::Custom) {
        // Its texts come from nowhere.
    } else if (m_analysedFrom) {
        isStale = m_documents.joystick().text() != *m_analysedFrom;
    } else if (m_layoutWritten) {
        const QFileInfo file(m_documents.joystick().path());
        isStale = file.isFile() && file.lastModified() > *m_layoutWritten;
    }
    if (isStale != m_isStale) {
        m_isStale = isStale;
        Q_EMIT staleChanged(isStale);
    }
}

} // namespace zeph
