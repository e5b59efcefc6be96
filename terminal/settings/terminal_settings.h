// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "backend/store/retention.h"
#include "host/contract/sync_info.h"
#include "terminal/settings/colour_scheme.h"
#include "terminal/settings/store_kind.h"

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>

#include <optional>

namespace wirepane {
class SettingsFile;

// The switches of the module's search modes, as "Application.ini" gives them to a view that opens.
struct SearchSwitches {
    bool normalSearch = true;
    bool warningSearch = false;

    bool operator==(const SearchSwitches&) const = default;
};

// Whether a diary is kept beside the store, and with the words of searches.
struct DiaryChoices {
    bool isKept = false;
    bool hasWords = true;

    bool operator==(const DiaryChoices&) const = default;
};

// The terminal's own settings, and what views read of them. Setters take effect for the next reader and are
// on disk after the settings file is saved; who changes what is on screen tells the views.
class TerminalSettings : public CSyncInfo {
public:
    static constexpr int smallestFont = 6;  // points
    static constexpr int largestFont = 36;
    static constexpr int usualFont = 10;

    // `file` is not owned and must outlive the settings.
    explicit TerminalSettings(SettingsFile& file);

    // Writes the file as it is now.
    Done save();

    ColourScheme scheme() const;
    void setScheme(ColourScheme scheme);
    // Whether quotes that rise are green and those that fall red; else the other way round.
    bool greenIsUp() const;
    void setGreenIsUp(bool isGreen);
    // Points, always within the limits above.
    int fontSize() const;
    void setFontSize(int points);
    // "en", "zh-TW" or "zh-CN"; empty: as the system is set.
    QString language() const;
    void setLanguage(const QString& language);
    SearchSwitches switches() const;
    void setSwitches(const SearchSwitches& switches);
    // 1: the pop-up story window is an ordinary window; 0: it stays on top.
    void setPopupPosition(int position);
    // The current symbol of a link group.
    void setCurrentSymbol(unsigned char linkGroup, const QString& code);
    // Whether Chinese text is drawn as it is written in simplified characters; not stored.
    void setSimplifiedGlyphs(bool simplified) { simplifiedGlyphs = simplified; }
    // The one of the user's stores that was chosen last; nothing: none was.
    std::optional<StoreKind> storeKind() const;
    void setStoreKind(StoreKind kind);
    // Whether the line for who has never been here is shown.
    bool showsFirstSteps() const;
    void setShowsFirstSteps(bool shown);
    // How much news the store keeps: "keepDays" and "keepMegabytes" of the file; 0, as at first: all of it.
    Retention retention() const;
    // The user's alerts, as they are stored; empty: he has changed nothing.
    QJsonObject alerts() const;
    void setAlerts(const QJsonObject& alerts);
    DiaryChoices diary() const;
    void setDiary(const DiaryChoices& diary);
    // The main frame's place, as QWidget::saveGeometry gives it.
    QByteArray frameGeometry() const;
    void setFrameGeometry(const QByteArray& geometry);

    QColor SYS_crGetOtherColor(const QString& name) override;
    QFont SYS_fntGetViewFont() override;
    bool CApi_GetThinBarStatus() override { return true; }
    int SYS_eGetPopupWndPosition() override;
    QString SYS_cszGetCurrentSymbol(unsigned char linkGroup) override;
    bool SYS_bGetIsLinkNews() override;
    void SYS_vSetIsLinkNews(bool linked) override;

private:
    QJsonValue stored(const QString& name) const;
    void store(const QString& name, const QJsonValue& value);

    SettingsFile& file;
    QHash<unsigned char, QString> currentSymbols;
    bool linkNews = false;
    bool simplifiedGlyphs = false;
};

}  // namespace wirepane
