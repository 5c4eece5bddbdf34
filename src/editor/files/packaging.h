// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "text/package.h"

#include <QObject>
#include <QPointer>

namespace zeph {

class MenuActions;
class EditorView;
class FileOpening;
class Frm_CreatePackage;
class UseDirectives;
struct UnpackReport;

/// Packs the files of a setup for other pilots, and unpacks their packages.
class Packaging : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        UseDirectives &directives;
        FileOpening &opening;
    };
    Packaging(const Context &context, const Parts &parts);
    ~Packaging() override;

    void mnuFileCreateDistribution_Click();
    void mnuOpenZip_Click();

private:
    PackageFields preset();
    QString unsavedHint() const;
    void create();
    bool copyFiles(const PackagePlan &plan);
    bool makeZip(const PackagePlan &plan);
    bool startWinZip(const QString &arguments);
    void unpack(const QString &zip);
    void tellReport(const UnpackReport &report);

    Context m_context;
    Parts m_parts;
    QPointer<Frm_CreatePackage> m_form;
};

} // namespace zeph
