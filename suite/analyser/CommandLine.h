// SPDX-License-Identifier: MIT
#pragma once

#include "Finding.h"
#include "NinjaRun.h"

#include <QString>
#include <QStringList>

/// What the program is to do.
enum class Tool { Analyse, Report, Browse, Count, WholeProgram, Status, Job, Help, Version };

enum class ReportForm { Text, Html, PlainHtml, Csv, Sarif };

struct CommandLine
{
    /// Reads arguments, the program's name first: it, or the first argument, chooses the tool. Throws a Failure for
    /// words that it does not understand.
    static CommandLine read(const QStringList& arguments);
    static QString usage();

    Tool tool = Tool::Help;
    /// Started under one of the names that launchers use: then the project is named with -prj, and results are enough
    /// for success.
    bool isLauncher = false;
    bool forC = false;
    ReportForm form = ReportForm::Text;
    /// The form was named, so an analysis is to be followed by the report.
    bool hasForm = false;
    QString projectFile;
    QString outputFile;
    RunSettings run;
    bool hasLimit = false;
    Severity limit = Severity::Error;
    Severity least = Severity::Debug;
    bool mayBeIncomplete = false;
    bool opensBrowser = true;
    /// The words that are the analyser's options, or a job's order.
    QStringList words;
};
