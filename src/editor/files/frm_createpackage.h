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

/// Asks for a package's name and files. Making it is whoever's who hears that it is wanted.
class Frm_CreatePackage : public QDialog
{
    Q_OBJECT
public:
    Frm_CreatePackage(const Context &context, const PackageFields &preset,
                      QWidget *parent = nullptr);
    ~Frm_CreatePackage() override;

    PackageFields fields() const;
    /// A line of advice below the fields; an empty one takes no room.
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
