// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/control_array.h"
#include "text/package.h"

#include <QDialog>

#include <memory>

class QLineEdit;

namespace zeph {

namespace Ui {
class Frm_CreatePackage;
}

/// Asks for a package's name and files and emits createWanted(); Packaging makes the package.
class Frm_CreatePackage : public QDialog
{
    Q_OBJECT
public:
    Frm_CreatePackage(const Context &context, const PackageFields &preset,
                      QWidget *parent = nullptr);
    ~Frm_CreatePackage() override;

    PackageFields fields() const;
    /// Shows a line of advice below the fields; hides the line when it is empty.
    void showHint(const QString &hint);
    void focusName();

Q_SIGNALS:
    void createWanted();

private:
    void locate(int index);

    Context m_context;
    ControlArray<QLineEdit> m_texts; ///< the name first, then the files
    std::unique_ptr<Ui::Frm_CreatePackage> m_ui;
};

} // namespace zeph
