// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/FieldEdit.h"

/// A line for a path: proposes what there is on disk while somebody types, and takes what a shell or a file manager
/// calls a path, "~/x", "file:///x" and dropped files.
class PathEdit : public FieldEdit
{
    Q_OBJECT

public:
    PathEdit(bool forFolders, QWidget* parent);

    /// What is wrong with the path, in words; empty when nothing is, or there is none. The tool tip ends with it.
    QString fault() const;

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void offerCompletion(const QString& typed);
    void takeForeignForm();

    bool foldersOnly;
    /// The folder whose entries are proposed.
    QString listed;
};
