// SPDX-License-Identifier: MIT
#include "dialogs/MessageBox.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QSpacerItem>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(MessageBox)
};

constexpr int leastWidth = 440;
// What a small screen has room for.
constexpr qsizetype listedLines = 12;

/// The box that others join, and what has joined it.
struct SharedBox
{
    QPointer<QMessageBox> box;
    QString addition;
    QStringList joined;
};

SharedBox& sharedBox()
{
    static SharedBox shared;
    return shared;
}

// Wide enough for its title and for the details.
void widen(QMessageBox& box)
{
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->addItem(new QSpacerItem(leastWidth, 0, QSizePolicy::Minimum), grid->rowCount(), 0, 1,
                      grid->columnCount());
    }
}

// The box decides by itself what its second text is; it holds names, so it must be plain.
void setAddition(QMessageBox& box, const QString& text)
{
    box.setInformativeText(text);
    if (auto* label = box.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s)) {
        label->setTextFormat(Qt::PlainText);
    }
}

void prepare(QMessageBox& box, const QString& addition)
{
    box.setTextFormat(Qt::PlainText);
    if (!addition.isEmpty()) {
        setAddition(box, addition);
    }
    widen(box);
}

void join(SharedBox& shared, const QString& title, const QString& text, const QString& details)
{
    shared.joined += title + u": "_s + text;
    const qsizetype unlisted = shared.joined.size() - listedLines;
    QString list = shared.addition + (shared.addition.isEmpty() ? QString() : u"\n\n"_s) + Text::tr("Meanwhile:") +
                   u'\n' + shared.joined.first(std::min(shared.joined.size(), listedLines)).join(u'\n');
    if (unlisted > 0) {
        list += u'\n' + Text::tr("... and %n more", nullptr, int(unlisted));
    }
    setAddition(*shared.box, list);
    shared.box->setDetailedText(shared.box->detailedText() + u"\n\n"_s + title + u": "_s + text + u'\n' + details);
}

} // namespace

bool MessageBox::ask(QWidget* parent, const QString& title, const QString& text, const QString& addition)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::Yes);
    prepare(box, addition);
    return box.exec() == QMessageBox::Yes;
}

void MessageBox::warn(QWidget* parent, const QString& title, const QString& text, const QString& addition)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    prepare(box, addition);
    box.exec();
}

void MessageBox::warnTogether(QWidget* parent, const QString& title, const QString& text, const QString& addition,
                              const QString& details)
{
    SharedBox& shared = sharedBox();
    if (shared.box) {
        join(shared, title, text, details);
        return;
    }
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box.setDetailedText(details);
    prepare(box, addition);
    shared.addition = addition;
    shared.joined.clear();
    shared.box = &box;
    box.exec();
    shared.box = nullptr;
}
