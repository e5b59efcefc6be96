// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Mood good = Mood::Good;
constexpr Mood bad = Mood::Bad;

constexpr Phrase analystHeadlines[] = {
    {u"{broker} lifts {co} target to {target}", good},
    {u"{broker} cuts {co} target to {target}", bad},
    {u"{broker} upgrades {co} to buy on outlook for {product}", good},
    {u"{broker} downgrades {co} to hold, cites stocks of {product}", bad},
    {u"{co} price target {raised} to {target} at {broker}"},
    {u"BROKER VIEW: {co} order book underrated, says {broker}", good},
    {u"BROKER VIEW: {broker} turns cautious on {co} margins", bad},
    {u"{broker} sees {co} revenue {up} {chg}% this year"},
};
constexpr Phrase analystLeads[] = {
    {u"{broker} {raised} its price target for {co} ({code}) to {target} from {targetold} in a note on "
     u"{weekday}. The shares last traded at {price}."},
    {u"Analysts at {broker} now expect revenue at {co} ({code}) to be {up} {chg}% this year and {raised} "
     u"their price target to {target} from {targetold}."},
};
constexpr Phrase analystParagraphs[] = {
    {u"\"Lead times for {product} have lengthened by three weeks since the last quarter,\" analyst {analyst} "
     u"wrote.",
     good},
    {u"\"Lead times for {product} have shortened by three weeks since the last quarter,\" analyst {analyst} "
     u"wrote.",
     bad},
    {u"The new target equals {multiple} times the earnings per share that the house expects for next year."},
    {u"{analyst} prefers the company to {peer} ({peercode}) because of its larger share of {product2}.",
     good},
    {u"{analyst} sees better value in {peer} ({peercode}), which depends less on {product2}.", bad},
    {u"Risks to the view are a faster change in exchange rates and delays at the new line in {site}."},
};

constexpr Phrase dealHeadlines[] = {
    {u"{co} to buy {stake}% of {foreign} for {deal}"}, {u"{co} takes {stake}% stake in {peer}"},
    {u"{co} sells {site} property for {deal}"},        {u"{co}, {foreign} form joint venture for {product}"},
    {u"{co} raises {deal} through convertible bond"},  {u"{co} said to weigh bid for {peer}"},
};
constexpr Phrase dealLeads[] = {
    {u"{co} ({code}) has put a number of steps before its board, the largest worth {deal}: a holding of "
     u"{stake}% in {foreign}, a stake in {peer} ({peercode}), the sale of property in {site} and a "
     u"convertible bond."},
    {u"{sectorcap} company {co} ({code}) is reshaping its holdings in transactions worth up to {deal} each, "
     u"filings on {weekday} showed. They include a holding of {stake}% in {foreign}, a stake in {peer} "
     u"({peercode}), the sale of property in {site} and a convertible bond."},
};
constexpr Phrase dealParagraphs[] = {
    {u"{foreign}, which also supplies {product}, said talks were at an early stage."},
    {u"The money comes from cash at hand and a loan over {years} years, the company said. It expects to "
     u"close by {meeting}."},
    {u"\"Scale matters more in {product} than it did five years ago,\" said {analyst} of {broker}."},
};

constexpr Phrase capexHeadlines[] = {
    {u"{co} to spend {capex} on {site} expansion"},
    {u"{co} board clears {capex} plan for {product}"},
    {u"{co} breaks ground on {capex} plant in {site}"},
    {u"{co} adds capacity for {product}, sees {share}% more output"},
    {u"{co} buys land in {site} for plant that will make {product}"},
};
constexpr Phrase capexLeads[] = {
    {u"The board of {co} ({code}) has approved spending of {capex} on new lines for {product} in {site}."},
    {u"{co} ({code}) will expand its site in {site} for {capex}, raising its output of {product} by "
     u"{share}%, the company said on {weekday}."},
};
constexpr Phrase capexParagraphs[] = {
    {u"Building work begins in {nextquarter}; the first line is to run within {months} months and will "
     u"employ {workers} people."},
    {u"About {rnd}% of the sum goes into power saving and water recycling, chief executive {chief} said."},
    {u"The plan is financed from cash flow and bank loans. Depreciation will weigh on margins by less than "
     u"half a percentage point, chief financial officer {finance} said."},
    {u"The local government of {site} has promised a power connection and a road by the end of next year."},
};

constexpr Phrase stockHeadlines[] = {
    {u"{co} shares {rise} {move}% to {price}"},
    {u"{co} up {move}% on turnover of {lots} lots", good},
    {u"{co} down {move}% on turnover of {lots} lots", bad},
    {u"HOT STOCK: {co} gains {move}% as {sector} names rally", good},
    {u"HOT STOCK: {co} loses {move}% as {sector} names sag", bad},
    {u"{co} climbs to three-month high of {price}", good},
    {u"{co} touches three-month low of {price}", bad},
    {u"{co} leads {sector} shares higher, last {price}", good},
    {u"{co} weighs on {sector} shares, last {price}", bad},
};
constexpr Phrase stockLeads[] = {
    {u"Shares in {co} ({code}) {rose} {move}% to {price} by {clock} on {weekday}, with {lots} lots traded."},
};
constexpr Phrase stockParagraphs[] = {
    {u"Other {sector} shares moved the same way; {peer} ({peercode}) was {up} {peermove}%."},
    {u"Dealers spoke of buying by local funds after the company's briefing on the market for {product}.",
     good},
    {u"Dealers spoke of stop-loss selling after the share fell through its 20-day average.", bad},
    {u"The broad market was {iup} {ipct}% at {level} points."},
};

constexpr Phrase openHeadlines[] = {
    {u"Taiwan shares open {iup} {iopen}% as {sector} names move"},
    {u"TAIWAN OPEN: weighted index {iup} {iopen}% in early trade"},
    {u"Taipei stocks start the day {ihigher}; {up1} in focus"},
    {u"{sectorcap} names set the tone at Taipei open"},
    {u"{up1} and {up2} lead Taipei {ihigher} in first trades"},
};
constexpr Phrase openLeads[] = {
    {u"Taiwan's weighted index opened {iup} {iopen}% on {weekday}, following the lead of overnight markets."},
};
constexpr Phrase openParagraphs[] = {
    {u"{up1} ({up1code}) was among the gainers, {up1move}% higher after its results. {down1} ({down1code}) "
     u"lost {down1move}%."},
    {u"The Taiwan dollar traded at {twd} to the US dollar in early deals."},
    {u"Investors look to {indicator} data from {thecountry}, due later this week."},
    {u"Turnover in the first half hour was a little {thinner} than a day earlier."},
};

constexpr Phrase middayHeadlines[] = {
    {u"Taiwan shares {iup} {ipct}% at midday, turnover {halfturnover}"},
    {u"MIDDAY: Taipei {ihigher}, {up1} leads gainers"},
    {u"Weighted index at {level}, {iup} {ipct}%, as funds rotate"},
    {u"{sectorcap} shares drive Taipei {ihigher} by midday"},
};
constexpr Phrase middayLeads[] = {
    {u"Taiwan shares were {iup} {ipct}% at {level} points by {clock} on {weekday}."},
};

constexpr Phrase closeHeadlines[] = {
    {u"Taiwan shares end {iup} {ipct}% at {level}"},
    {u"TAIWAN CLOSE: weighted index {irises} {ipct}%, turnover {turnover}"},
    {u"Taipei closes {ihigher}; {up1} gains, {down1} slides"},
    {u"Taiwan stocks close {ihigher} on {sector} names"},
    {u"MARKET WRAP: {adv} rise, {dec} fall in Taipei"},
};
constexpr Phrase closeLeads[] = {
    {u"Taiwan's weighted index closed {iup} {ipct}% at {level} points on {weekday}, with turnover of "
     u"{turnover}."},
    {u"Shares in Taipei ended {weekday} {ihigher}, the weighted index closing {iup} {ipct}% at {level} "
     u"points."},
};
constexpr Phrase closeParagraphs[] = {
    {u"Among the larger stocks, {up1} ({up1code}) rose {up1move}% and {up2} ({up2code}) {up2move}%, while "
     u"{down1} ({down1code}) fell {down1move}% and {down2} ({down2code}) {down2move}%."},
    {u"Gainers and losers stood at {adv} to {dec}."},
    {u"\"The market is waiting for {indicator} numbers out of {thecountry} and nobody wants a large position "
     u"before that,\" said {analyst}, who trades at {broker}."},
    {u"Foreign investors {fbought} a net {flow} of shares, figures after the close showed."},
    {u"The Taiwan dollar was at {twd} to the US dollar. The ten-year government bond yielded {yld}%."},
};

constexpr Phrase flowHeadlines[] = {
    {u"Foreign investors net {fbuyers} of {flow} in Taipei"},
    {u"FLOWS: foreign funds {fbought} {flow} of Taiwan shares on {weekday}"},
    {u"Foreign funds favour {up1}, sell {down1}"},
    {u"Funds {fbought} net {flow} of Taiwan stocks, {sector} on top"},
};
constexpr Phrase flowLeads[] = {
    {u"Foreign institutions {fbought} a net {flow} of Taiwan shares on {weekday}, exchange figures showed "
     u"after the close."},
};
constexpr Phrase flowParagraphs[] = {
    {u"Their purchases included {up1} ({up1code}) and {up2} ({up2code}); they sold {down1} ({down1code})."},
    {u"Domestic funds were on the other side for most of the session. Margin lending came down slightly."},
    {u"The weighted index closed {iup} {ipct}% at {level} points."},
};

constexpr Phrase bondHeadlines[] = {
    {u"Taiwan 10-year yield at {yld}%, {yup} {ybp} bp"},
    {u"BONDS: ten-year yield edges {yup} to {yld}% in thin trade"},
    {u"Government bond tender draws {cover} times cover"},
    {u"Bond dealers eye {centralbank} after yield reaches {yld}%"},
};
constexpr Phrase bondLeads[] = {
    {u"The yield of Taiwan's ten-year government bond was {yup} {ybp} basis points at {yld}% on {weekday}."},
};
constexpr Phrase bondParagraphs[] = {
    {u"A tender of ten-year paper earlier in the week drew {cover} times the amount on offer."},
    {u"\"Insurers buy whenever the yield is on the high side of its range,\" a dealer at {broker} said."},
    {u"Overnight funds were little changed. The market expects {centralbank} to leave its rate at {rate}% at "
     u"the next meeting."},
};

constexpr Phrase forexHeadlines[] = {
    {u"US dollar at {fx} {curunit}, {fxup} {fxpct}% on the day"},
    {u"FOREX: dollar {fxfirms} against {curname} to {fx}"},
    {u"{curcap} {fxother} to {fx} per US dollar"},
    {u"Dollar/{cur} last at {fx} as traders await {indicator} data"},
    {u"Exporters set the tone in dollar/{cur}, last {fx}"},
};
constexpr Phrase forexLeads[] = {
    {u"The US dollar {fxfirmed} against {curname} on {weekday} and stood at {fx} by {clock}, {fxup} {fxpct}% "
     u"from {fxprev} late on the previous trading day."},
};
constexpr Phrase forexParagraphs[] = {
    {u"Dealers named flows from exporters and positions taken before {indicator} figures from {thecountry}."},
    {u"\"It is a market of small orders; anything above average size moves the rate,\" one bank dealer "
     u"said."},
    {u"Spot gold was at {gold} dollars an ounce, and crude oil at {oil} dollars a barrel."},
    {u"{analyst} of {broker} expects the pair to stay within one percent of the present rate through the "
     u"month."},
};

constexpr Phrase commodityHeadlines[] = {
    {u"{cmdcap} {rises} {cpct}% to {cprice} {cunit}"},
    {u"{cmdcap} firms to {cprice} {cunit} on supply worries", good},
    {u"{cmdcap} eases to {cprice} {cunit} as stocks build", bad},
    {u"COMMODITIES: {cmd} {up} {cpct}%, last {cprice} {cunit}"},
    {u"{cmdcap} settles {up} {cpct}% before {indicator} data"},
};
constexpr Phrase commodityLeads[] = {
    {u"{cmdcap} {rose} {cpct}% to {cprice} {cunit} on {weekday}."},
};
constexpr Phrase commodityParagraphs[] = {
    {u"Stocks in the main warehouses shrank for the third week running, and two cargoes were delayed by bad "
     u"weather.",
     good},
    {u"Stocks in the main warehouses grew for the third week running, and buyers in {thecountry} held back.",
     bad},
    {u"\"Physical demand is what it always is at this time of the year; the swings come from funds,\" said "
     u"{analyst} at {broker}."},
    {u"The dollar was {fxup} {fxpct}% against {curname} at {fx}. A stronger dollar makes raw materials "
     u"dearer for other currencies."},
};

constexpr TopicText texts[] = {
    {Topic::Analyst, analystHeadlines, analystLeads, analystParagraphs},
    {Topic::Deal, dealHeadlines, dealLeads, dealParagraphs},
    {Topic::Capex, capexHeadlines, capexLeads, capexParagraphs},
    {Topic::StockMove, stockHeadlines, stockLeads, stockParagraphs},
    {Topic::MarketOpen, openHeadlines, openLeads, openParagraphs},
    {Topic::MarketMidday, middayHeadlines, middayLeads, openParagraphs},
    {Topic::MarketClose, closeHeadlines, closeLeads, closeParagraphs},
    {Topic::Flows, flowHeadlines, flowLeads, flowParagraphs},
    {Topic::Bonds, bondHeadlines, bondLeads, bondParagraphs},
    {Topic::Forex, forexHeadlines, forexLeads, forexParagraphs},
    {Topic::Commodity, commodityHeadlines, commodityLeads, commodityParagraphs},
};

}  // namespace

std::span<const TopicText> englishMarketTexts() {
    return texts;
}

}  // namespace wirepane::sample
