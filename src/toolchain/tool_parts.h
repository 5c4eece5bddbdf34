// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace zeph {

class AfterDownload;
class CougarModes;
class DocumentSaver;
class Documents;
class MenuActions;
class Profiles;
class ToolScene;
class ToolchainHandshake;

/// What the commands of the toolchain work with. All of it must outlive them.
struct ToolParts {
    ToolchainHandshake &handshake;
    CougarModes &modes;
    Profiles &profiles;
    AfterDownload &afterDownload;
    Documents &documents;
    DocumentSaver &saver;
    ToolScene &scene;
    MenuActions &actions;
    QWidget &mainWindow; ///< owns the windows that ask the user
};

} // namespace zeph
