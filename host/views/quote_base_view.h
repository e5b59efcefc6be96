// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/cfg_io.h"
#include "host/contract/export.h"
#include "host/contract/news_receiver.h"
#include "host/views/com_virtual_base_view.h"

#include <vector>

namespace wirepane {

// Whether a view has something to show.
enum class DataState : int { Normal = 0, NotSupported = 1 };

}  // namespace wirepane

// A view of quotes or news: it hears the back end, has a current symbol and a link group, and keeps settings.
// It attaches itself to the installed back end in OnInitialUpdate and detaches when it is destroyed.
class WIREPANE_HOST_EXPORT TRVQuoteBaseView : public RVComVirtualBaseView, public wirepane::NewsReceiver {
    Q_OBJECT

public:
    explicit TRVQuoteBaseView(QWidget* parent = nullptr);
    ~TRVQuoteBaseView() override;

    void OnInitialUpdate() override;

    // The host hands the view its settings: where they are read from, the section, the host's two layout
    // numbers and the view's name. Once per view, after OnInitialUpdate.
    virtual void InitialViewInfo(TRVCfgIO2* reader, const QString& section, int first, int second,
                                 const QString& name);
    // The host saves its layout: the view writes its settings to the same place.
    virtual void SaveViewInfo(TRVCfgIO2* writer, const QString& section, int first, int second);

    // The application has become active (non-zero) or inactive.
    virtual void ChangeActiveApp(int active);

    // A symbol change by the host or by a linked view; `sender` is null when it comes from the host.
    virtual void ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service,
                              const QString& code, const QString& name);
    // The symbol that other views may take from this one.
    virtual int GetCurrSymbolInfo(unsigned char& service, QString& code);
    // Quote registrations: made again after a reconnection, ended while the view is not shown.
    virtual void vReRegisterSymbols();
    virtual void vUnregisterViewSymbol();

    // Views of one link group follow one symbol; 0: not linked.
    void setLinkGroup(unsigned char group) { linkGroup = group; }
    unsigned char linkedGroup() const { return linkGroup; }

    // What kind of view the host made of the class; set before InitialViewInfo.
    void setTypeName(const QString& name) { typeName = name; }
    const QString& viewTypeName() const { return typeName; }

    // The host's wish that pop-up windows of the view follow the application's activation also where they are
    // kept on top.
    void setPopupFollowsApplication(bool follows) { popupFollowsApplication = follows; }
    bool doesPopupFollowApplication() const { return popupFollowsApplication; }

    wirepane::DataState currentDataState() const { return dataState; }

    // 1 when the user may see this service.
    static int bIsAuthService(unsigned char service);

Q_SIGNALS:
    // The user has chosen a symbol here that the views of `group` shall follow.
    void SendChangeSymbol(unsigned char group, unsigned char service, const QString& code);
    // The view has something to tell the user that does not go by itself: a sentence, such as why a file
    // could not be written.
    void messageForUser(const QString& sentence);

protected:
    void setDataState(wirepane::DataState state) { dataState = state; }
    void setBaseSymbol(const CSymbolInfo& symbol) { baseSymbol = symbol; }

    // Where the settings stand and who reads them; valid from InitialViewInfo on. The reader is the host's.
    TRVCfgIO2* settingsReader = nullptr;
    wirepane::ViewSettingPath settingsPath;

private:
    CSymbolInfo baseSymbol;
    QString typeName;
    unsigned char linkGroup = 0;
    bool popupFollowsApplication = false;
    wirepane::DataState dataState = wirepane::DataState::Normal;
};

// Real-time distribution by the installed back end; without one nothing happens.
WIREPANE_HOST_EXPORT void C_RegisterSymbol(TRVQuoteBaseView* view, const std::vector<CSymbolInfo>& added,
                                           const std::vector<CSymbolInfo>& removed);
WIREPANE_HOST_EXPORT void C_UnRegisterSymbol(TRVQuoteBaseView* view);
