// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/word_tables.h"

namespace wirepane::sample {

namespace {

constexpr Word siteTable[] = {
    {u"Hsinchu", u"新竹"}, {u"Taichung", u"台中"}, {u"Tainan", u"台南"}, {u"Kaohsiung", u"高雄"},
    {u"Taoyuan", u"桃園"}, {u"Changhua", u"彰化"}, {u"Miaoli", u"苗栗"}, {u"Chiayi", u"嘉義"},
    {u"Yunlin", u"雲林"},  {u"Pingtung", u"屏東"},
};
constexpr Word hongKongSiteTable[] = {
    {u"Dongguan", u"東莞"}, {u"Huizhou", u"惠州"},  {u"Zhongshan", u"中山"},
    {u"Foshan", u"佛山"},   {u"Shenzhen", u"深圳"},
};
constexpr Word cityTable[] = {
    {u"Kaohsiung", u"高雄"}, {u"Taichung", u"台中"}, {u"Taipei", u"台北"},
    {u"Tainan", u"台南"},    {u"Hualien", u"花蓮"},
};
constexpr Word hongKongCityTable[] = {
    {u"Hong Kong", u"香港"},
    {u"Shenzhen", u"深圳"},
    {u"Guangzhou", u"廣州"},
    {u"Shanghai", u"上海"},
};
constexpr Word abroadTable[] = {
    {u"Shanghai", u"上海"},    {u"Hanoi", u"越南河內"},         {u"Bangkok", u"泰國曼谷"},
    {u"Singapore", u"新加坡"}, {u"Monterrey", u"墨西哥蒙特雷"},
};
constexpr Incident incidentTable[] = {
    {{u"power outage", u"跳電"}, u"a power outage"},
    {{u"fire", u"火警"}, u"a fire"},
    {{u"gas leak", u"氣體外洩"}, u"a gas leak"},
    {{u"flood", u"淹水"}, u"a flood"},
    {{u"equipment failure", u"設備故障"}, u"an equipment failure"},
};
constexpr Word ruleTable[] = {
    {u"margin lending", u"融資融券"},
    {u"cloud outsourcing at brokers", u"券商雲端委外"},
    {u"warrant market making", u"權證造市"},
    {u"green fund labels", u"永續基金標示"},
    {u"short selling disclosure", u"借券賣出揭露"},
    {u"related-party deals", u"關係人交易"},
};
constexpr Word breachTable[] = {
    {u"late risk reports", u"風險申報延遲"},
    {u"gaps in client checks", u"客戶身分確認缺失"},
    {u"advice given without records", u"投資建議未留存紀錄"},
    {u"a system outage", u"交易系統中斷"},
};
constexpr Country countryTable[] = {
    {{u"US", u"美國"}, u"the US"},
    {{u"Japan", u"日本"}, u"Japan"},
    {{u"Euro zone", u"歐元區"}, u"the euro zone"},
    {{u"China", u"中國大陸"}, u"China"},
    {{u"Germany", u"德國"}, u"Germany"},
    {{u"South Korea", u"南韓"}, u"South Korea"},
    {{u"Taiwan", u"台灣"}, u"Taiwan"},
};
constexpr Indicator indicatorTable[] = {
    {{u"manufacturing index", u"製造業景氣指數"}, 470, 545, 1, false},
    {{u"consumer price inflation", u"消費者物價年增率"}, 6, 36, 1, true},
    {{u"industrial output growth", u"工業生產年增率"}, 4, 78, 1, true},
    {{u"factory order growth", u"工廠訂單年增率"}, 5, 124, 1, true},
    {{u"retail sales growth", u"零售銷售年增率"}, 3, 62, 1, true},
    {{u"consumer confidence", u"消費者信心指數"}, 640, 1080, 1, false},
};
constexpr CentralBank bankTable[] = {
    {{u"Taiwan's central bank", u"央行"}, u"2.00"},
    {{u"the US central bank", u"美國央行"}, u"3.75"},
    {{u"the euro zone's central bank", u"歐元區央行"}, u"2.15"},
    {{u"Japan's central bank", u"日本央行"}, u"0.75"},
};
constexpr Currency currencyTable[] = {
    {{u"the Taiwan dollar", u"新台幣"}, u"Taiwan dollars", 312400, 3},
    {{u"the yen", u"日圓"}, u"yen", 1524000, 2},
    {{u"the yuan", u"人民幣"}, u"yuan", 70800, 4},
    {{u"the won", u"韓元"}, u"won", 14150000, 1},
};
constexpr Commodity commodityTable[] = {
    {{u"crude oil", u"原油"}, {u"dollars a barrel", u"美元"}, 7120},
    {{u"gold", u"黃金"}, {u"dollars an ounce", u"美元"}, 268000},
    {{u"copper", u"銅價"}, {u"dollars a tonne", u"美元"}, 964000},
    {{u"natural gas", u"天然氣"}, {u"dollars per mmBtu", u"美元"}, 342},
    {{u"silver", u"白銀"}, {u"dollars an ounce", u"美元"}, 3180},
    {{u"aluminium", u"鋁價"}, {u"dollars a tonne", u"美元"}, 254000},
    {{u"wheat", u"小麥"}, {u"dollars a bushel", u"美元"}, 562},
};

}  // namespace

std::span<const Word> taiwanSites() {
    return siteTable;
}
std::span<const Word> hongKongSites() {
    return hongKongSiteTable;
}
std::span<const Word> taiwanCities() {
    return cityTable;
}
std::span<const Word> hongKongCities() {
    return hongKongCityTable;
}
std::span<const Word> citiesAbroad() {
    return abroadTable;
}
std::span<const Incident> incidents() {
    return incidentTable;
}
std::span<const Word> ruleAreas() {
    return ruleTable;
}
std::span<const Word> breaches() {
    return breachTable;
}
std::span<const Country> countries() {
    return countryTable;
}
std::span<const Indicator> indicators() {
    return indicatorTable;
}
std::span<const CentralBank> centralBanks() {
    return bankTable;
}
std::span<const Currency> currencies() {
    return currencyTable;
}
std::span<const Commodity> commodities() {
    return commodityTable;
}

}  // namespace wirepane::sample
