// SPDX-License-Identifier: MIT
#include "wizard/PathEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QDirIterator>
#include <QDropEvent>
#include <QFileInfo>
#include <QFocusEvent>
#include <QMimeData>
#include <QStringListModel>
#include <QTextDocument>
#include <QToolTip>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostProposals = 1000;

// "~/x" as a shell reads it.
QString inHome(const QString& path)
{
    return path == u'~' || path.startsWith("~/"_L1) ? QDir::homePath() + path.mid(1) : path;
}

} // namespace

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
    return foldersOnly ? tr("This is a file, not a folder.") : tr("This is a folder, not a file.");
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

// Only the folder that is being typed in is read, and of a crowded one the beginning.
void PathEdit::offerCompletion(const QString& typed)
{
    const qsizetype end = std::max(typed.lastIndexOf(u'/'), typed.lastIndexOf(QDir::separator())) + 1;
    const QString folder = typed.first(end);
    if (folder == listed) {
        return;
    }
    listed = folder;
    if (!completer()) {
        auto* paths = new QCompleter(new QStringListModel(this), this);
        paths->setModelSorting(QCompleter::CaseSensitivelySortedModel);
        setCompleter(paths);
    }
    QStringList entries;
    QDirIterator names(inHome(folder), (foldersOnly ? QDir::Dirs : QDir::AllEntries) | QDir::NoDotAndDotDot);
    while (!folder.isEmpty() && names.hasNext() && entries.size() < mostProposals) {
        names.next();
        entries += folder + names.fileName();
    }
    entries.sort();
    static_cast<QStringListModel*>(completer()->model())->setStringList(entries);
}

// Its proposals must not stay over another field and take the keys meant for that.
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
    } else if (inHome(path) != path) {
        setText(QDir::toNativeSeparators(inHome(path)));
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
