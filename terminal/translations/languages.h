// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace wirepane {

// The texts of Qt's own dialogs and buttons: Qt's, where they are installed, else those of the most common
// ones.
class ToolkitTexts : public QTranslator {
public:
    // Qt's catalogues keep the names of the kinds of files under the file dialog, where they were once asked
    // for.
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override;
};

// The languages of the terminal and the module: "en", "zh-TW" and "zh-CN". At most one is in force.
class Languages {
public:
    static QStringList codes();
    // The language that suits the user's system best.
    static QString ofSystem();

    // Takes the language into force for the whole application; its windows get a language-change event.
    // False, and nothing changed, for a code that is not one of codes().
    bool use(const QString& code);
    // Empty before the first use().
    const QString& current() const { return currentCode; }

private:
    QTranslator texts;
    ToolkitTexts toolkitTexts;
    QString currentCode;
};

}  // namespace wirepane
