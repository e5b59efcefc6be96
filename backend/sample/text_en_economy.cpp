// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Mood good = Mood::Good;
constexpr Mood bad = Mood::Bad;

constexpr Phrase macroHeadlines[] = {
    {u"{country} {indicator} at {value} in {month}, prior {prior}"},
    {u"{country} {indicator} rises to {value}, above forecasts", good},
    {u"{country} {indicator} slips to {value}, below forecasts", bad},
    {u"FLASH: {country} {month} {indicator} {value} vs forecast {forecast}"},
    {u"{country} {month} {indicator} {beats} market view of {forecast}"},
};
constexpr Phrase macroLeads[] = {
    {u"{country} {indicator} came in at {value} for {month}, after {prior} the month before, the statistics "
     u"office said on {weekday}. Economists had expected {forecast}."},
};
constexpr Phrase macroParagraphs[] = {
    {u"The rise was broad and reached most regions, the office said.", good},
    {u"The decline came mainly from the more volatile components; the rest was stable.", bad},
    {u"\"One month is not a trend, but the direction agrees with what companies tell us,\" said {analyst}, "
     u"economist at {broker}."},
    {u"The figure for the month before was confirmed at {prior}."},
    {u"{centralbankcap} meets next on {meeting}. Its policy rate stands at {rate}%."},
};

constexpr Phrase bankHeadlines[] = {
    {u"{centralbankcap} holds rate at {rate}%"},
    {u"{centralbankcap} governor: no hurry on rates"},
    {u"{centralbankcap} keeps {rate}% rate, watches {indicator}"},
    {u"POLL: {majority}% of economists see {centralbank} on hold"},
    {u"{centralbankcap} minutes show debate on timing of next step"},
};
constexpr Phrase bankLeads[] = {
    {u"{centralbankcap} sees its policy rate of {rate}% as right for now, according to a statement on "
     u"{weekday} that repeated the words of its last meeting."},
};
constexpr Phrase bankParagraphs[] = {
    {u"Prices rise at a pace close to the aim, it said, and growth has been near its potential since "
     u"{lastquarter}."},
    {u"\"We read the next statement as neutral. The bar for a move in either direction is high,\" said "
     u"{analyst} of {broker}."},
    {u"In a poll of {count} economists, {majority}% expected no change before the end of the year."},
    {u"The US dollar traded at {fx} {curunit} after the statement."},
};

constexpr Phrase regulationHeadlines[] = {
    {u"Regulator fines {broker} {fine} over {breach}"},        {u"Regulator to tighten rules on {rulearea}"},
    {u"Draft rules on {rulearea} out for {days}-day comment"}, {u"Watchdog opens review of {rulearea}"},
    {u"New rules on {rulearea} take effect {effective}"},
};
constexpr Phrase regulationLeads[] = {
    {u"The financial regulator on {weekday} put forward rules on {rulearea} that are to take effect on "
     u"{effective}. It also fined {broker} {fine} over {breach}."},
};
constexpr Phrase regulationParagraphs[] = {
    {u"Comments can be sent in for {days} days. Firms have six months to adapt their systems."},
    {u"\"The rules close gaps that the last inspection showed,\" an official said at a briefing."},
    {u"{broker} said it had corrected the matter before the inspection ended and that no client lost money."},
    {u"Brokers expect the cost for a house of middle size to stay below {cost} a year."},
};

constexpr Phrase weatherHeadlines[] = {
    {u"Gale warning: {city} port shuts, markets to trade as usual"},
    {u"Heavy rain stops work at {city} industrial parks"},
    {u"Reservoirs serving {city} at {share}% of capacity"},
    {u"{city} clears up after storm; power back for most"},
    {u"{city} heat pushes power demand to record for {month2}"},
};
constexpr Phrase weatherLeads[] = {
    {u"Companies in and around {city} kept production running on {weekday} despite severe weather, the city "
     u"government said."},
};
constexpr Phrase weatherParagraphs[] = {
    {u"The weather office expects conditions to ease within {days} days. Schools and offices stay open."},
    {u"Reservoirs serving the area stood at {share}% of capacity, enough for the needs of industry until the "
     u"next rainy season."},
    {u"The power company said its reserve margin was {rnd}% at the peak of the day."},
    {u"{co} ({code}), which runs a plant in the area, said deliveries of {product} were on schedule."},
};

constexpr Phrase transportHeadlines[] = {
    {u"Container rates on Asia-Europe route {rise} {rnd}% on week"},
    {u"{city} port handles {rnd}% {more} boxes in {month}"},
    {u"{city} airport cargo {up} {rnd}% on year in {month}"},
    {u"Dry bulk index {up} {rnd}%, led by larger ships"},
    {u"Queue of ships off {city} {shortens} to {count} vessels"},
};
constexpr Phrase transportLeads[] = {
    {u"Freight markets {rose} in the latest week, with rates from Asia to Europe {up} {rnd}%, figures from "
     u"brokers in {city} showed."},
};
constexpr Phrase transportParagraphs[] = {
    {u"The number of ships waiting off {city} came to {count}, port data showed."},
    {u"\"Space is booked out until the middle of next month, after that it is anybody's guess,\" a forwarder "
     u"said.",
     good},
    {u"\"Carriers are leaving out sailings to keep rates from sliding further,\" a forwarder said.", bad},
    {u"Fuel for ships was little changed with crude oil at {oil} dollars a barrel."},
};

constexpr Phrase labourHeadlines[] = {
    {u"{city} dock workers weigh {rnd}% pay offer"},
    {u"Unions at {city} plants call {days}-day stoppage"},
    {u"{country} jobless rate at {jobless}% in {month}"},
    {u"Minimum pay panel proposes {rnd}% increase"},
    {u"Hiring intentions {more2} in {city}, survey shows"},
};
constexpr Phrase labourLeads[] = {
    {u"Pay and jobs set the theme on {weekday}: dock workers in {city} have been offered {rnd}% more, while "
     u"unions at plants nearby are planning a stoppage of {days} days."},
};
constexpr Phrase labourParagraphs[] = {
    {u"The jobless rate in {thecountry} stood at {jobless}% in {month}, and firms report that technicians "
     u"are hard to find."},
    {u"A stoppage of {days} days would affect the docks and two industrial parks."},
    {u"\"There is room for an agreement before {meeting},\" said a mediator appointed by the city."},
    {u"Economists at {broker} put the effect of the offered rise on prices at a tenth of a percentage "
     u"point."},
};

constexpr Phrase digestHeadlines[] = {
    {u"COMPANY NEWS: Asia briefs for {today}"},
    {u"FACTS: Taiwan companies reporting this week"},
    {u"WEEK AHEAD: results, {indicator} data and {centralbank}"},
    {u"DIARY: corporate events from {today}"},
    {u"INSIGHT: how Taiwan firms plan for {nextquarter}"},
    {u"ROUND-UP: orders, results and plans of the day"},
};
constexpr Phrase digestLeads[] = {
    {u"The following is a summary of company and market news, gathered from filings, briefings and "
     u"interviews up to {clock} on {weekday}."},
};
constexpr Phrase digestParagraphs[] = {
    {u"In the markets, the weighted index was last at {level} points, the US dollar at {twd} Taiwan dollars, "
     u"crude oil at {oil} dollars a barrel and gold at {gold} dollars an ounce."},
};

constexpr Phrase buybackHeadlines[] = {
    {u"{co} buys back {lots},000 shares for {spent}"},
    {u"HK BUYBACK: {co} repurchases shares at up to {price}"},
    {u"{co} extends buyback, spends {spent} on {weekday}"},
};
constexpr Phrase buybackLeads[] = {
    {u"{co} ({code}) bought back {lots},000 of its own shares on the exchange on {weekday} for {spent}, at "
     u"prices up to {price}."},
};
constexpr Phrase buybackParagraphs[] = {
    {u"Since the mandate was granted the company has repurchased {stake2}% of its share capital."},
    {u"The shares bought back will be cancelled, the {sector} company said in a filing."},
};

constexpr Phrase warningHeadlines[] = {
    {u"{co} warns of {pchg}% drop in {quarter} profit", bad},
    {u"PROFIT ALERT: {co} sees {quarter} net {up} {pchg}%", good},
    {u"{co} issues {quarter} profit {alert}"},
};
constexpr Phrase warningLeads[] = {
    {u"{co} ({code}) told the exchange on {weekday} that it expects its {quarter} net profit to be {up} "
     u"about {pchg}% from a year earlier."},
};
constexpr Phrase warningParagraphs[] = {
    {u"The {sector} company named lower prices of {product} and the fair value of properties as the main "
     u"reasons.",
     bad},
    {u"The {sector} company named higher volumes of {product} and lower finance costs as the main reasons.",
     good},
    {u"The figures are based on management accounts that have not been audited. Results are due on "
     u"{meeting}."},
    {u"Shareholders are advised to exercise caution when dealing in the shares."},
};

constexpr Phrase placingHeadlines[] = {
    {u"{co} places new shares at {placing} to raise {deal}"},
    {u"{co} to raise {deal} in share placing, discount {discount}%"},
    {u"HK PLACING: {co} sells stock at {discount}% discount"},
};
constexpr Phrase placingLeads[] = {
    {u"{co} ({code}) will raise {deal} by placing new shares at {placing} each, a discount of {discount}% to "
     u"the last close of {price}."},
};
constexpr Phrase placingParagraphs[] = {
    {u"The new shares equal {placed}% of the enlarged capital. {broker} acts as placing agent."},
    {u"The proceeds go into the business with {product} and into the repayment of bank loans."},
};

constexpr TopicText texts[] = {
    {Topic::Macro, macroHeadlines, macroLeads, macroParagraphs},
    {Topic::CentralBank, bankHeadlines, bankLeads, bankParagraphs},
    {Topic::Regulation, regulationHeadlines, regulationLeads, regulationParagraphs},
    {Topic::Weather, weatherHeadlines, weatherLeads, weatherParagraphs},
    {Topic::Transport, transportHeadlines, transportLeads, transportParagraphs},
    {Topic::Labour, labourHeadlines, labourLeads, labourParagraphs},
    {Topic::Digest, digestHeadlines, digestLeads, digestParagraphs},
    {Topic::Buyback, buybackHeadlines, buybackLeads, buybackParagraphs},
    {Topic::ProfitWarning, warningHeadlines, warningLeads, warningParagraphs},
    {Topic::Placing, placingHeadlines, placingLeads, placingParagraphs},
};

constexpr Phrase background[] = {
    {u"{cofull} supplies {product} and {product2} and employs about {staff} people, most of them in {site}. "
     u"Its chairman is {chair}."},
    {u"The shares of {co} closed at {close} on the previous trading day. The company is valued at {cap}."},
    {u"Of the {count} analysts who follow {co}, more than half recommend buying the share; the mean target "
     u"is {meantarget}."},
    {u"{co} reported revenue of {annual} for the last full year and a net profit margin of {netmargin}%."},
    {u"Competitors of {co} in the {sector} industry include {peer} ({peercode})."},
};

}  // namespace

std::span<const TopicText> englishEconomyTexts() {
    return texts;
}

std::span<const Phrase> englishBackgroundTexts() {
    return background;
}

}  // namespace wirepane::sample
