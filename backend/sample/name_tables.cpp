// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/word_tables.h"

namespace wirepane::sample {

namespace {

constexpr Word taiwanFirst[] = {
    {u"Cheng", u"澄"}, {u"Shuo", u"朔"}, {u"Yu", u"嶼"},  {u"Yi", u"翊"},   {u"Xiu", u"岫"},
    {u"Tang", u"棠"},  {u"Mu", u"沐"},   {u"Ji", u"霽"},  {u"Jin", u"槿"},  {u"Ran", u"苒"},
    {u"Heng", u"珩"},  {u"Yun", u"昀"},  {u"Kai", u"楷"}, {u"Hui", u"洄"},  {u"Hao", u"皓"},
    {u"Jing", u"璟"},  {u"Song", u"嵩"}, {u"Pan", u"磐"}, {u"Ying", u"穎"}, {u"Duo", u"鐸"},
    {u"Cong", u"琮"},  {u"Xu", u"煦"},   {u"Zi", u"梓"},  {u"Quan", u"荃"}, {u"Shao", u"韶"},
    {u"Min", u"旻"},   {u"Ning", u"甯"}, {u"Lin", u"霖"}, {u"Qing", u"磬"}, {u"Ling", u"翎"},
};
constexpr Word taiwanSecond[] = {
    {u"chuan", u"川"}, {u"he", u"禾"},   {u"yue", u"岳"}, {u"heng", u"蘅"}, {u"ze", u"澤"},
    {u"xi", u"曦"},    {u"ye", u"野"},   {u"lan", u"嵐"}, {u"yan", u"硯"},  {u"ting", u"汀"},
    {u"zhou", u"舟"},  {u"feng", u"峰"}, {u"du", u"渡"},  {u"yuan", u"原"}, {u"tao", u"陶"},
    {u"rang", u"壤"},  {u"gang", u"崗"}, {u"hua", u"樺"}, {u"fan", u"帆"},  {u"di", u"堤"},
    {u"qiu", u"丘"},   {u"sui", u"穗"},  {u"tan", u"潭"}, {u"bai", u"柏"},
};
constexpr Word hongKongFirst[] = {
    {u"Kiu", u"翹"}, {u"Chung", u"頌"}, {u"Hiu", u"曉"}, {u"Long", u"朗"}, {u"To", u"濤"},   {u"Pak", u"珀"},
    {u"Doi", u"岱"}, {u"Yat", u"逸"},   {u"Wui", u"匯"}, {u"Ho", u"灝"},   {u"Chun", u"駿"}, {u"Hei", u"禧"},
    {u"Pok", u"璞"}, {u"Hung", u"鴻"},  {u"Hon", u"翰"}, {u"Lai", u"麗"},  {u"Kei", u"騏"},  {u"Sum", u"琛"},
};
constexpr Word hongKongSecond[] = {
    {u"wan", u"灣"},  {u"ling", u"嶺"}, {u"fung", u"峯"}, {u"kai", u"溪"},
    {u"tong", u"塘"}, {u"chau", u"洲"}, {u"ngai", u"崖"}, {u"po", u"埔"},
    {u"kan", u"澗"},  {u"king", u"徑"}, {u"yuen", u"苑"}, {u"man", u"汶"},
    {u"yung", u"榕"}, {u"wu", u"湖"},   {u"ngon", u"岸"}, {u"mei", u"湄"},
};

constexpr Word surnameTable[] = {
    {u"Lin", u"林"},  {u"Chen", u"陳"},  {u"Huang", u"黃"},  {u"Chang", u"張"}, {u"Lee", u"李"},
    {u"Wang", u"王"}, {u"Wu", u"吳"},    {u"Tsai", u"蔡"},   {u"Liu", u"劉"},   {u"Yang", u"楊"},
    {u"Hsu", u"許"},  {u"Cheng", u"鄭"}, {u"Hsieh", u"謝"},  {u"Kuo", u"郭"},   {u"Hung", u"洪"},
    {u"Chiu", u"邱"}, {u"Tseng", u"曾"}, {u"Liao", u"廖"},   {u"Lai", u"賴"},   {u"Chou", u"周"},
    {u"Yeh", u"葉"},  {u"Su", u"蘇"},    {u"Chuang", u"莊"}, {u"Lu", u"呂"},    {u"Chiang", u"江"},
    {u"Ho", u"何"},   {u"Lo", u"羅"},    {u"Hsiao", u"蕭"},  {u"Chien", u"簡"}, {u"Chu", u"朱"},
};
constexpr Word givenTable[] = {
    {u"Yu-chen", u"昱辰"},    {u"Chih-wei", u"志偉"},  {u"Shu-fen", u"淑芬"},   {u"Chia-hao", u"家豪"},
    {u"Mei-ling", u"美玲"},   {u"Tsung-han", u"宗翰"}, {u"Ya-ting", u"雅婷"},   {u"Po-yu", u"柏宇"},
    {u"Hsin-yi", u"欣怡"},    {u"Chun-hung", u"俊宏"}, {u"Li-hua", u"麗華"},    {u"Kuan-ting", u"冠廷"},
    {u"Wen-hsiung", u"文雄"}, {u"Pei-shan", u"佩珊"},  {u"Ming-che", u"明哲"},  {u"Yi-chun", u"怡君"},
    {u"Cheng-en", u"承恩"},   {u"Hui-min", u"慧敏"},   {u"Jui-lung", u"瑞隆"},  {u"Szu-ying", u"思穎"},
    {u"Shih-ming", u"世銘"},  {u"Ching-yi", u"靜宜"},  {u"Kuo-cheng", u"國正"}, {u"Hsiu-chin", u"秀琴"},
    {u"Tzu-hsuan", u"子軒"},  {u"Yen-ju", u"彥如"},    {u"Chao-yang", u"朝陽"}, {u"Wan-ting", u"婉庭"},
};

constexpr QStringView foreignTable[] = {
    u"Halvorsen",  u"Brightmoor", u"Castellane", u"Northquay", u"Orlovane",  u"Tarnwick",
    u"Pellinore",  u"Asterby",    u"Quillon",    u"Dunmarrow", u"Vexley",    u"Kestrelbay",
    u"Lindqvarn",  u"Mariscol",   u"Ostermeer",  u"Fennimark", u"Grellsohn", u"Tolvane",
    u"Sableworth", u"Ridgeholt",  u"Calderette", u"Ivoran",    u"Montreval", u"Haugesand",
};
constexpr Word brokerTable[] = {
    {u"Harbour Slate Securities", u"岩港證券"},
    {u"Lanyu Securities", u"嵐嶼證券"},
    {u"Yuanting Securities", u"源汀證券"},
    {u"Penghai Securities", u"蓬海證券"},
    {u"Kuiyang Securities", u"葵陽證券"},
    {u"Cypress Gate Capital", u"柏門證券"},
    {u"Tidewater Row", u"潮行證券"},
    {u"Northlight Research", u"北曦證券"},
    {u"Muxi Securities", u"沐溪證券"},
    {u"Stonefield Securities", u"石原證券"},
};
constexpr QStringView issuerTable[] = {
    u"岩港", u"嵐嶼", u"源汀", u"蓬海", u"葵陽", u"柏門", u"潮行", u"北曦", u"沐溪", u"石原",
};
constexpr Word roleTable[] = {
    {u"chairman", u"董事長"},
    {u"chief executive", u"總經理"},
    {u"chief financial officer", u"財務主管"},
    {u"head of research", u"研發主管"},
    {u"chief operating officer", u"營運長"},
    {u"spokesperson", u"發言人"},
    {u"head of internal audit", u"內部稽核主管"},
};

}  // namespace

std::span<const Word> taiwanFirstSyllables() {
    return taiwanFirst;
}
std::span<const Word> taiwanSecondSyllables() {
    return taiwanSecond;
}
std::span<const Word> hongKongFirstSyllables() {
    return hongKongFirst;
}
std::span<const Word> hongKongSecondSyllables() {
    return hongKongSecond;
}
std::span<const Word> surnames() {
    return surnameTable;
}
std::span<const Word> givenNames() {
    return givenTable;
}
std::span<const QStringView> foreignCompanies() {
    return foreignTable;
}
std::span<const Word> brokers() {
    return brokerTable;
}
std::span<const QStringView> issuerNames() {
    return issuerTable;
}
std::span<const Word> roles() {
    return roleTable;
}

}  // namespace wirepane::sample
