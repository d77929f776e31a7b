// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

#include <QDialog>
#include <QPointer>

class AppRegistry;
class FindBar;
class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QPrinter;
class QPushButton;
class QTextBrowser;
class TextPortions;

/// Shows a text: plain, as HTML with Back and Forward, or as a short message. Listed in the registry's open dialogs
/// from its construction until its Close button is pressed or it is destroyed.
class DisplayDialog : public QDialog
{
    Q_OBJECT

public:
    /// The ways of showing a text, with the numbers that launchers use.
    enum Mode { Text = 1, Html = 2, Message = 3 };

    DisplayDialog(AppRegistry& owner, const QString& title, int mode, int width, int height, QWidget* parent = nullptr);
    ~DisplayDialog() override;

    /// Shows the text. A large plain text appears at once and is completed in portions, so that the window stays alive.
    /// Of html on which the window would stall, only the beginning is shown, as plain text, and the browser is offered.
    void SetText(const QString& text);
    /// The file that holds the whole of what SetText will only begin with. Without one, SetText writes it when needed.
    void setWholeFile(const QString& fileName) { wholeFile = fileName; }
    /// Shows a text file in a modal window, of a very large one the beginning. The problem is why it can not be
    /// opened; a pipe or a device, which would never end, is not.
    static Result<void> showFile(AppRegistry& registry, const QString& title, const QString& fileName);
    /// Prints the whole text; a message is not printed.
    void printTo(QPrinter& printer);

public Q_SLOTS:
    void Save() {}
    void Print();
    void Close();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void createView(QGridLayout& grid);
    void createBrowser(QGridLayout& grid);
    void createButtons(QGridLayout& grid);
    bool LoadHtml(const QString& text);
    /// A temporary file with the text as html; empty when none can be written.
    QString writeHtml(const QString& text, const QString& suffix);
    void offerBrowser(const QString& text);
    void openInBrowser();
    void openFindBar();
    void unlist();

    QPointer<AppRegistry> registry;
    int mode;
    QPlainTextEdit* textView = nullptr;
    QTextBrowser* htmlView = nullptr;
    QLabel* messageLabel = nullptr;
    QPushButton* printButton = nullptr;
    QPushButton* browserButton = nullptr;
    TextPortions* portions = nullptr;
    /// Made when it is first asked for.
    FindBar* findBar = nullptr;
    QString wholeFile;
};
