// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/translations/languages.h"

#include "terminal/translations/text_table.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString catalogueSuffix(const QString& code) {
    return QString(code).replace(u'-', u'_');
}

}  // namespace

QString ToolkitTexts::translate(const char* context, const char* source, const char* disambiguation,
                                int n) const {
    const bool ofFileKinds = QLatin1StringView(context) == "QAbstractFileIconProvider"_L1;
    const QString text =
        QTranslator::translate(ofFileKinds ? "QFileDialog" : context, source, disambiguation, n);
    if (!text.isEmpty())
        return text;
    static const TextTable own(u":/names/toolkit_texts.tsv"_s);
    return own.find(QString::fromUtf8(source)).value_or(QString());
}

QStringList Languages::codes() {
    return {u"en"_s, u"zh-TW"_s, u"zh-CN"_s};
}

QString Languages::ofSystem() {
    const QLocale locale = QLocale::system();
    if (locale.language() != QLocale::Chinese)
        return u"en"_s;
    return locale.script() == QLocale::TraditionalChineseScript ? u"zh-TW"_s : u"zh-CN"_s;
}

bool Languages::use(const QString& code) {
    if (!codes().contains(code))
        return false;
    // Calendars and dates of windows follow it, also where they are made later.
    QLocale::setDefault(QLocale(catalogueSuffix(code)));
    QCoreApplication::removeTranslator(&texts);
    QCoreApplication::removeTranslator(&toolkitTexts);
    // Not found, it still has a few texts of its own.
    (void)toolkitTexts.load(u"qtbase_"_s + catalogueSuffix(code),
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    QCoreApplication::installTranslator(&toolkitTexts);
    const bool loaded = texts.load(u":/i18n/wirepane_"_s + catalogueSuffix(code));
    if (loaded)
        QCoreApplication::installTranslator(&texts);
    currentCode = code;
    return loaded;
}

}  // namespace wirepane
