// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QAbstractButton;
class QGroupBox;
class QLineEdit;
class QWidget;
class SelectFileWidgets;

/// The kinds of input field, with the numbers the suite uses.
enum class InputType { File = 0, Dir = 1, Group = 2, Check = 3, Radio = 4, Edit = 5 };

/// One input field of a conversion type; a group holds further fields.
struct ArgumentDefinition
{
    QString displayName;
    /// Names the remembered value in the settings.
    QString key;
    InputType inputType = InputType::Edit;
    int columns = 1;
    bool mustBeSet = false;
    bool fileMustExist = false;
    bool cOnly = false;
    bool cppOnly = false;
    QString hoverHelp;
    QString outputString;
    QString extension = QStringLiteral("*");
    QString separator = QStringLiteral(" ");
    QString argument;
    QString prefix;
    QString cDefaultValue;
    QString cppDefaultValue;
    std::vector<std::unique_ptr<ArgumentDefinition>> children;

    /// The controls built for the field; the page's widget tree owns them.
    QLineEdit* lineEdit = nullptr;
    SelectFileWidgets* fileWidgets = nullptr;
    QAbstractButton* button = nullptr;
    QList<QWidget*> widgets;
    /// The value entered, as remembered.
    QString value;

    const QString& DefaultValue(bool isC) const { return isC ? cDefaultValue : cppDefaultValue; }
    bool isText() const
    {
        return inputType == InputType::File || inputType == InputType::Dir || inputType == InputType::Edit;
    }
    bool isSwitch() const { return inputType == InputType::Check || inputType == InputType::Radio; }
    /// The field belongs to the other analyser.
    bool isHiddenFor(bool isC) const { return isC ? cppOnly : cOnly; }
};

using ArgumentDefinitions = std::vector<std::unique_ptr<ArgumentDefinition>>;

/// A conversion type: what runs, what it asks for, which analysers it serves.
struct ProjectCreatorData
{
    bool orvcProject = false;
    bool orvcppProject = false;
    QString name;
    QString exe;
    QStringList exeArgs;
    ArgumentDefinitions inputData;
    QString cCompilerPersonality;
    QString cppCompilerPersonality;
    QString cAnalyserPersonality;
    QString cppAnalyserPersonality;
    QString cMessagePersonality;
    QString cppMessagePersonality;
    bool hasMessagePersonality = false;
    bool hasAnalyserPersonality = false;
    bool hasCompilerPersonality = false;
    /// Where the element begins in the definitions file.
    qint64 line = 0;

    /// The controls of inputData; the page owns them.
    QGroupBox* panel = nullptr;
};
Q_DECLARE_METATYPE(ProjectCreatorData*)

/// A set of configuration files that a rule book prescribes for one analyser.
struct ComplianceModule
{
    bool isC = true;
    QString compilerPersonality;
    QString analyserPersonality;
    QString messagePersonality;
    QString name;
    QString location;
};
Q_DECLARE_METATYPE(ComplianceModule*)

/// Configuration files that are added to every project of one analyser.
class CodingStandard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QString name;
    QString description;
    QString messagePersonality;
    QString analyserPersonality;
    QString compilerPersonality;
    bool isC = true;
    bool available = true;
    bool selected = true;
};

/// The program that looks across all modules of a project.
class CrossModuleAnalysis : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QString exe;
    QStringList exeArgs;
    bool available = true;
    bool selected = true;
};
