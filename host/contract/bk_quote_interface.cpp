// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/bk_quote_interface.h"

#include "host/contract/misuse.h"

#include <QCoreApplication>

#include <algorithm>

using namespace wirepane;

namespace {
BKQuoteInterface* installed = nullptr;
}

BKQuoteInterface::~BKQuoteInterface() {
    if (installed == this)
        installed = nullptr;
}

BKQuoteInterface* BKQuoteInterface::GetBKInterface() {
    return installed;
}

void BKQuoteInterface::setBKInterface(BKQuoteInterface* backEnd) {
    installed = backEnd;
}

void BKQuoteInterface::attach(NewsReceiver* receiver) {
    requireInterfaceThread("BKQuoteInterface::Attach");
    if (receiver != nullptr && std::find(receivers.begin(), receivers.end(), receiver) == receivers.end())
        receivers.push_back(receiver);
}

void BKQuoteInterface::detach(NewsReceiver* receiver) {
    requireInterfaceThread("BKQuoteInterface::Detach");
    unregisterSymbols(receiver);
    if (deliveries > 0)
        std::replace(receivers.begin(), receivers.end(), receiver, static_cast<NewsReceiver*>(nullptr));
    else
        std::erase(receivers, receiver);
}

void BKQuoteInterface::forEachReceiver(const std::function<void(NewsReceiver&)>& call) {
    requireInterfaceThread("BKQuoteInterface::ForEachReceiver, by which a back end answers and tells news,");
    ++deliveries;
    // By index: a receiver may attach another one, which is called too.
    for (std::size_t i = 0; i < receivers.size(); ++i) {
        if (receivers[i] != nullptr)
            call(*receivers[i]);
    }
    if (--deliveries == 0)
        std::erase(receivers, nullptr);
}

void BKQuoteInterface::registerSymbols(NewsReceiver*, const std::vector<CSymbolInfo>&,
                                       const std::vector<CSymbolInfo>&) {}

void BKQuoteInterface::unregisterSymbols(NewsReceiver*) {}

bool BKQuoteInterface::BKQNEWS_bGetShortNameByService(QString& name, unsigned char service) {
    return BKQNEWS_bGetFullNameByService(name, service);
}

unsigned char BKQuoteInterface::BKQbyGetNewsDateRange() {
    return 255;
}

bool BKQuoteInterface::bNewsAPI_GetNewsCatId(unsigned char, std::vector<QString>& ids,
                                             std::vector<QString>& names) {
    ids.clear();
    names.clear();
    return false;
}

int BKQuoteInterface::BKQCheckAuthSupport(unsigned char) {
    return 0;
}

bool BKQuoteInterface::bGetAllServiceID(std::vector<unsigned char>& services) {
    services.clear();
    return false;
}

bool BKQuoteInterface::bGetServiceID2Delay(unsigned char, unsigned char&) {
    return false;
}

int BKQuoteInterface::bIsFromTheSameAuthServiceID(unsigned char service, unsigned char other) {
    return service == other ? 1 : 0;
}

bool BKQuoteInterface::bGetSymbolID(unsigned char, std::vector<QString>& codes, std::vector<QString>& names) {
    codes.clear();
    names.clear();
    return false;
}

int BKQuoteInterface::bIsSymbolIDExist(unsigned char, const QString&) {
    return 0;
}

bool BKQuoteInterface::bGetCategorybySymbolID(int&, unsigned char, const QString&) {
    return false;
}

bool BKQuoteInterface::bGetItemDataByItemNo(QString&, unsigned char, const QString&, int) {
    return false;
}

bool BKQuoteInterface::bSymbolNameIsShowRealMonth() {
    return false;
}

bool BKQuoteInterface::bGetCommodityIDBySymbolID(QString&, unsigned char, const QString&) {
    return false;
}

int BKQuoteInterface::BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>&, unsigned char,
                                                const CSymbolInfo&) {
    return 0;
}

bool BKQuoteInterface::BKNEWS_GetSymbolListBySeqNo(CNewsSymLst&, const CHeadlineTable&) {
    return false;
}

bool BKQuoteInterface::BKQNews_bReRequestHeadlineStory(const CHeadlineTable&) {
    return false;
}

bool BKQuoteInterface::BKNEWS_bReRequestHeadlineTable(unsigned char, const CSymbolInfo&) {
    return false;
}

bool BKQuoteInterface::BKNEWS_bReRequestHeadlineTable(unsigned char, int, const QString&) {
    return false;
}

bool BKQuoteInterface::BKQNEWS_bReCoverHeadline(unsigned char, std::vector<CHeadline>&,
                                                const std::vector<CHeadlineTable>&) {
    return false;
}

bool BKQuoteInterface::BKQNEWS_bSearchNews(unsigned char, int, const CSearch&) {
    return false;
}

QString BKQuoteInterface::LangGetLangString(const QString& key) {
    return qtTrId(key.toUtf8().constData());
}

bool BKQuoteInterface::LangIsConvertToSimplified(const unsigned char&) {
    return false;
}

void BKQuoteInterface::LangConvertToSimplifiedChinese(const QString& in, QString& out) {
    out = in;
}

QString BKQuoteInterface::PathGetSysPath() {
    return QCoreApplication::applicationDirPath();
}
