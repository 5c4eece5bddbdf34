// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Everything that asks or tells in a box of its own goes through here, so that tests can answer.

#include "platform/core/base.h"
#include "platform/core/file_io.h"
#include "platform/core/rich_text.h"

#include <QList>
#include <QStringList>

#include <QApplication>
#include <array>
#include <exception>
#include <functional>
#include <utility>

namespace zeph {

enum class BoxIcon { None, Information, Question, Exclamation, Stop };
/// Other is one that only its caption names.
enum class BoxButton { Ok, Cancel, Yes, No, Other };

/// A message box. Escape and the close button answer Cancel, else No, else the only button.
struct Box {
    QString title = {};
    QString text = {};
    BoxIcon icon = BoxIcon::None;
    QList<BoxButton> buttons = { BoxButton::Ok };
    BoxButton defaultButton = BoxButton::Ok;
    /// The caption of a tick below the text; without one there is no tick.
    QString tick = {};
    /// Receives the tick's state when the box closes.
    std::function<void(bool)> ticked = {};
    QStringList captions = {}; ///< of the buttons, in their order; empty for the usual ones
};

/// An open or save dialog. The filter has the form "Caption|*.a;*.b|Caption|*.c".
struct FileRequest {
    QString title = {};
    QString filter = {};
    QString defaultExtension = {}; ///< without the dot; added to a name that has none
    QString folder = {};
    QString name = {};
    bool showsPictures = false; ///< an open dialog with a preview of the selected picture
};

/// The colours that the user has mixed in the colour dialog.
using CustomColours = std::array<ColorRef, 16>;

/// Where the custom colours are kept between runs; both functions or none.
struct CustomColourStore {
    std::function<CustomColours()> read;
    std::function<void(const CustomColours &)> keep;
};

class Dialogs
{
public:
    virtual ~Dialogs() = default;

    virtual BoxButton box(const Box &box) = 0;
    /// Asks for a file to open. Its path; no value on Cancel.
    virtual std::optional<QString> openFile(const FileRequest &request) = 0;
    /// As openFile; whether the file exists already is the caller's question to ask.
    virtual std::optional<QString> saveFile(const FileRequest &request) = 0;
    virtual std::optional<QString> chooseFolder(const QString &title, const QString &start) = 0;
    /// Shows the custom colours of their store, and keeps what the user makes of them.
    virtual std::optional<ColorRef> chooseColour(ColorRef start) = 0;
    virtual std::optional<CharFormat> chooseFont(const CharFormat &start) = 0;
    /// Index (0-based) of the chosen line; no value on Cancel.
    virtual std::optional<qsizetype> chooseFromList(const QString &title,
                                                    const QStringList &lines) = 0;

    /// Shorthands for the common boxes.
    void tell(const QString &title, const QString &text, BoxIcon icon = BoxIcon::Information);
    /// Yes or No, No the default.
    bool ask(const QString &title, const QString &text, BoxIcon icon = BoxIcon::Exclamation);

    CustomColourStore customColours;
};

class Dialogs;

/// The title of the boxes about files that may not be written.
inline constexpr QStringView readOnlyTitle = u"Can't save Read Only file";

/// Asks the user before a file that exists is overwritten, and refuses one that is marked as read
/// only with a box. True when the file may be written.
bool mayOverwrite(Dialogs &dialogs, const QString &path);

/// Tells that a save failed, and why.
void tellNotSaved(Dialogs &dialogs, const FileError &error);

/// Tells what escaped a handler. The only box for failures that nobody expected.
void tellEscaped(Dialogs &dialogs, const QString &reason);

/// Wraps a slot that can fail: nothing that it throws reaches the event loop.
template <class Slot> auto guarded(Dialogs &dialogs, Slot slot)
{
    return [&dialogs, slot = std::move(slot)](auto &&...arguments) mutable {
        try {
            slot(std::forward<decltype(arguments)>(arguments)...);
        } catch (const std::exception &error) {
            tellEscaped(dialogs, QString::fromLocal8Bit(error.what()));
        } catch (...) {
            tellEscaped(dialogs, u"Unknown failure"_s);
        }
    };
}

/// Keeps what escapes a handler from the event loop: tells it to the user and runs the last
/// resort.
class FallGuard
{
public:
    /// Shows a failure; when null, nothing is shown.
    Dialogs *dialogs = nullptr;
    /// Runs after the message. Its own failure does not run it again.
    std::function<void()> lastResort;

    /// Runs the handler. Gives its result, or true when it failed.
    bool run(const std::function<bool()> &handler);

private:
    void fall(const QString &reason);

    bool m_falling = false;
};

/// The toolkit's application, which lets no failure of a handler end the program.
class SafeApplication : public QApplication
{
public:
    SafeApplication(int &argc, char **argv);

    FallGuard guard;

    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace zeph
