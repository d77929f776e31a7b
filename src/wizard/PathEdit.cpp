// SPDX-License-Identifier: MIT
#include "wizard/PathEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QFocusEvent>
#include <QMimeData>
#include <QTextDocument>
#include <QToolTip>
#include <QUrl>

using namespace Qt::StringLiterals;

PathEdit::PathEdit(bool forFolders, QWidget* parent)
    : FieldEdit(parent)
    , foldersOnly(forFolders)
{
    connect(this, &QLineEdit::textEdited, this, &PathEdit::offerCompletion);
    connect(this, &QLineEdit::editingFinished, this, &PathEdit::takeForeignForm);
}

QString PathEdit::fault() const
{
    const QFileInfo file(text().trimmed());
    if (file.filePath().isEmpty() || (file.exists() && file.isDir() == foldersOnly)) {
        return {};
    }
    if (!file.exists()) {
        return tr("There is no file or folder of this name.");
    }
    return foldersOnly ? tr("This is a file. A folder is asked for.") : tr("This is a folder. A file is asked for.");
}

bool PathEdit::event(QEvent* event)
{
    const QString wrong = event->type() == QEvent::ToolTip ? fault() : QString();
    if (wrong.isEmpty()) {
        return FieldEdit::event(event);
    }
    const QString help = toolTip();
    const QString line = Qt::mightBeRichText(help) ? u"<br>"_s : u"\n"_s;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), help.isEmpty() ? wrong : help + line + wrong,
                       this);
    return true;
}

// Nothing on disk is read before somebody types.
void PathEdit::offerCompletion()
{
    if (completer()) {
        return;
    }
    auto* paths = new QCompleter(this);
    auto* model = new QFileSystemModel(paths);
    model->setFilter((foldersOnly ? QDir::Dirs : QDir::AllEntries) | QDir::AllDirs | QDir::NoDotAndDotDot);
    model->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    model->setOption(QFileSystemModel::DontWatchForChanges);
    model->setRootPath(QDir::rootPath());
    paths->setModel(model);
    setCompleter(paths);
}

// A folder that is read late would bring its proposals up over another field, and take the keys meant for that.
void PathEdit::focusOutEvent(QFocusEvent* event)
{
    FieldEdit::focusOutEvent(event);
    const bool isOtherWindow =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (completer() && !isOtherWindow) {
        completer()->popup()->hide();
        completer()->setWidget(nullptr);
    }
}

void PathEdit::takeForeignForm()
{
    const QString path = text().trimmed();
    const QUrl url(path, QUrl::StrictMode);
    if (path.startsWith("file://"_L1) && url.isLocalFile()) {
        setText(QDir::toNativeSeparators(url.toLocalFile()));
    } else if (path == u'~' || path.startsWith("~/"_L1)) {
        setText(QDir::toNativeSeparators(QDir::homePath() + path.mid(1)));
    }
}

void PathEdit::dropEvent(QDropEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (isReadOnly() || urls.isEmpty() || !urls.first().isLocalFile()) {
        FieldEdit::dropEvent(event);
        return;
    }
    setText(QDir::toNativeSeparators(urls.first().toLocalFile()));
    event->acceptProposedAction();
}
