// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/terminal_settings.h"

#include "terminal/settings/settings_file.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QRawFont>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The family and, for what it lacks, those that draw Chinese characters as the language writes them: left to
// itself, the system may take glyphs or weights of another language.
QStringList familiesWithChinese(const QString& family, bool simplified) {
    const QStringList traditionalFamilies{u"Noto Sans CJK TC"_s, u"Noto Sans TC"_s, u"PingFang TC"_s,
                                          u"Microsoft JhengHei"_s};
    const QStringList simplifiedFamilies{u"Noto Sans CJK SC"_s, u"Noto Sans SC"_s, u"PingFang SC"_s,
                                         u"Microsoft YaHei"_s};
    QStringList families{family};
    for (const QString& chinese : simplified ? simplifiedFamilies : traditionalFamilies) {
        if (QFontDatabase::hasFamily(chinese))
            families.append(chinese);
    }
    return families;
}

// Light strokes on a dark ground look heavier, those of Chinese characters first: there they are drawn a step
// lighter where the system has such a face, and where the other letters stay what they are.
QFont::Weight weightOnDark(const QFont& font) {
    constexpr auto demiLight = QFont::Weight(350);
    const QStringList families = font.families();
    const bool hasFace = std::any_of(families.begin() + 1, families.end(), [](const QString& family) {
        return QFontDatabase::styles(family).contains(u"DemiLight"_s);
    });
    if (!hasFace)
        return QFont::Normal;
    QFont lighter(font);
    lighter.setWeight(demiLight);
    const bool sameLetters = QRawFont::fromFont(lighter).styleName() == QRawFont::fromFont(font).styleName();
    return sameLetters ? demiLight : QFont::Normal;
}

}  // namespace

TerminalSettings::TerminalSettings(SettingsFile& settingsFile) : file(settingsFile) {}

QJsonValue TerminalSettings::stored(const QString& name) const {
    return file.value(u"terminal"_s, name);
}

void TerminalSettings::store(const QString& name, const QJsonValue& value) {
    file.setValue(u"terminal"_s, name, value);
}

ColourScheme TerminalSettings::scheme() const {
    return schemeByName(stored(u"scheme"_s).toString()).value_or(ColourScheme::Light);
}

void TerminalSettings::setScheme(ColourScheme scheme) {
    store(u"scheme"_s, schemeName(scheme));
}

bool TerminalSettings::greenIsUp() const {
    return stored(u"greenIsUp"_s).toBool(false);
}

void TerminalSettings::setGreenIsUp(bool isGreen) {
    store(u"greenIsUp"_s, isGreen);
}

int TerminalSettings::fontSize() const {
    return std::clamp(stored(u"fontSize"_s).toInt(usualFont), smallestFont, largestFont);
}

void TerminalSettings::setFontSize(int points) {
    store(u"fontSize"_s, std::clamp(points, smallestFont, largestFont));
}

QString TerminalSettings::language() const {
    return stored(u"language"_s).toString();
}

void TerminalSettings::setLanguage(const QString& language) {
    store(u"language"_s, language);
}

std::optional<StoreKind> TerminalSettings::storeKind() const {
    const QString kind = stored(u"store"_s).toString();
    if (kind == "own"_L1)
        return StoreKind::Own;
    return kind == "sample"_L1 ? std::optional(StoreKind::Sample) : std::nullopt;
}

void TerminalSettings::setStoreKind(StoreKind kind) {
    store(u"store"_s, kind == StoreKind::Own ? u"own"_s : u"sample"_s);
}

bool TerminalSettings::showsFirstSteps() const {
    return stored(u"firstSteps"_s).toBool(true);
}

void TerminalSettings::setShowsFirstSteps(bool shown) {
    store(u"firstSteps"_s, shown);
}

SearchSwitches TerminalSettings::switches() const {
    SearchSwitches result;
    result.normalSearch = stored(u"showNormalSearch"_s).toBool(result.normalSearch);
    result.warningSearch = stored(u"showWarningSearch"_s).toBool(result.warningSearch);
    return result;
}

void TerminalSettings::setSwitches(const SearchSwitches& switches) {
    store(u"showNormalSearch"_s, switches.normalSearch);
    store(u"showWarningSearch"_s, switches.warningSearch);
}

void TerminalSettings::setPopupPosition(int position) {
    store(u"popupPosition"_s, position);
}

void TerminalSettings::setCurrentSymbol(unsigned char linkGroup, const QString& code) {
    currentSymbols.insert(linkGroup, code);
}

Retention TerminalSettings::retention() const {
    constexpr std::int64_t megabyte = 1'000'000;
    return {std::max(0, stored(u"keepDays"_s).toInt()),
            megabyte * std::max(0, stored(u"keepMegabytes"_s).toInt())};
}

QJsonObject TerminalSettings::alerts() const {
    return stored(u"alerts"_s).toObject();
}

Done TerminalSettings::save() {
    return file.save();
}

void TerminalSettings::setAlerts(const QJsonObject& alerts) {
    store(u"alerts"_s, alerts);
}

DiaryChoices TerminalSettings::diary() const {
    return {stored(u"diary"_s).toBool(), stored(u"diaryWords"_s).toBool(true)};
}

void TerminalSettings::setDiary(const DiaryChoices& diary) {
    store(u"diary"_s, diary.isKept);
    store(u"diaryWords"_s, diary.hasWords);
}

QByteArray TerminalSettings::frameGeometry() const {
    return QByteArray::fromBase64(stored(u"frameGeometry"_s).toString().toLatin1());
}

void TerminalSettings::setFrameGeometry(const QByteArray& geometry) {
    store(u"frameGeometry"_s, QString::fromLatin1(geometry.toBase64()));
}

QColor TerminalSettings::SYS_crGetOtherColor(const QString& name) {
    return schemeColour(scheme(), name, greenIsUp());
}

QFont TerminalSettings::SYS_fntGetViewFont() {
    QFont font = QGuiApplication::font();
    font.setFamilies(familiesWithChinese(QFontInfo(font).family(), simplifiedGlyphs));
    font.setPointSize(fontSize());
    font.setWeight(QFont::Normal);
    if (scheme() != ColourScheme::Light)
        font.setWeight(weightOnDark(font));
    return font;
}

int TerminalSettings::SYS_eGetPopupWndPosition() {
    return stored(u"popupPosition"_s).toInt(1);
}

QString TerminalSettings::SYS_cszGetCurrentSymbol(unsigned char linkGroup) {
    return currentSymbols.value(linkGroup);
}

bool TerminalSettings::SYS_bGetIsLinkNews() {
    return linkNews;
}

void TerminalSettings::SYS_vSetIsLinkNews(bool linked) {
    linkNews = linked;
}

}  // namespace wirepane
