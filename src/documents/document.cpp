// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document.h"

#include "platform/core/paths.h"

namespace zeph {

namespace {

constexpr int noSteps = 0;

/// The bytes of a file, which are none at all only without a file: an empty one has empty bytes.
QByteArray bytesOfFile(const QByteArray &bytes)
{
    return bytes.isNull() ? QByteArray("") : bytes;
}

} // namespace

Document::Document(DocumentKind kind, const int &undoMax, QObject *parent)
    : ColouredText(parent), m_kind(kind), m_history(*this, undoMax)
{
    setState(Empty);
    connect(this, &ColouredText::changed, this, &Document::countEdit);
    connect(this, &ColouredText::keyComing, this, [this](int key) { m_history.keyPressed(key); });
}

Document::Document(DocumentKind kind) : Document(kind, noSteps) { }

Document::~Document() = default;

void Document::rename(const QString &path)
{
    m_path = path;
    m_name = nameOf(path);
    Q_EMIT renamed();
}

void Document::setState(qint16 state)
{
    if (state == Modified) {
        m_unchanged.reset();
    } else {
        m_unchanged.emplace(states().present(), state);
    }
    showState(state);
}

void Document::showState(qint16 state)
{
    if (m_state != state) {
        m_state = state;
        Q_EMIT stateChanged();
    }
}

void Document::updateState()
{
    const DocumentState present = states().present();
    const bool isUnchanged = m_unchanged && states().holdSame(present, m_unchanged->first);
    if (isUnchanged) {
        // The next comparison finds the parts that both share.
        m_unchanged->first = present;
    }
    showState(isUnchanged ? m_unchanged->second : qint16(Modified));
}

void Document::countEdit()
{
    updateState();
    const bool undone = m_history.canRedo();
    if (m_history.textChanged() || undone) {
        Q_EMIT stepsChanged();
    }
    Q_EMIT edited();
}

void Document::step(void (UndoHistory::*way)())
{
    (m_history.*way)();
    updateState();
    Q_EMIT stepsChanged();
    Q_EMIT replaced(How::Undone);
}

void Document::tellReplaced(How how, const QByteArray &onDisk)
{
    m_onDisk = how == How::Loaded ? bytesOfFile(onDisk) : QByteArray();
    m_recovered = how == How::Recovered;
    select(0, 0);
    m_history.reset();
    setState(how == How::Fresh ? Empty : how == How::Recovered ? Modified : Saved);
    Q_EMIT stepsChanged();
    Q_EMIT replaced(how);
}

void Document::tellWritten(const QByteArray &bytes, Save save)
{
    m_onDisk = bytesOfFile(bytes);
    m_recovered = false;
    setState(Saved);
    Q_EMIT written(save);
}

void Document::tellLooksWritten()
{
    if (m_unchanged
        && states().holdSame(states().present(), m_unchanged->first, DocumentStates::Same::Text)) {
        m_unchanged->first = states().present();
        showState(m_unchanged->second);
    }
}

Change::Change(Document &document)
    : m_document(document), m_before(document.states().present()),
      m_anchor(document.cursor().anchor()), m_caret(document.cursor().position())
{
    // Colours may have come since the last step.
    document.history().storeShown();
    m_quiet.emplace(document);
}

Change::~Change()
{
    if (m_quiet) {
        m_document.states().restore(m_before);
        m_document.setCaret(m_anchor, m_caret);
    }
}

bool Change::commit()
{
    if (!m_quiet) {
        return false;
    }
    m_quiet.reset();
    DocumentStates &states = m_document.states();
    if (states.holdSame(states.present(), m_before, DocumentStates::Same::AllLooks)) {
        // What was pasted over itself lost whose colours it had.
        states.restore(m_before);
        return false;
    }
    m_document.history().UndoStepNext = 1;
    m_document.countEdit();
    return true;
}

} // namespace zeph
