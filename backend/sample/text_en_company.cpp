// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Mood good = Mood::Good;
constexpr Mood bad = Mood::Bad;

constexpr Phrase earningsHeadlines[] = {
    {u"{co} {quarter} net profit {rises} {pchg}%"},
    {u"{co} posts {quarter} profit of {profit}, EPS {eps}"},
    {u"{co}'s profit jumps {pchg}% on strong demand for {product}", good},
    {u"{co} {quarter} profit down {pchg}% as orders for {product} slow", bad},
    {u"RESULTS: {co} {quarter} revenue {rev}, net {profit}"},
    {u"Better mix lifts {co} gross margin to {margin}%", good},
    {u"{co} margin squeezed to {margin}% as costs bite", bad},
    {u"{co} beats forecasts with {quarter} net of {profit}", good},
    {u"{co} misses forecasts; {quarter} net {profit}", bad},
};
constexpr Phrase earningsLeads[] = {
    {u"{co} ({code}), known for its {product}, said on {weekday} its {quarter} net profit {rose} {pchg}% "
     u"from a year earlier to {profit}, helped by steady demand and a better mix of sales.",
     good},
    {u"{quartercap} net profit at {co} ({code}) {rose} {pchg}% to {profit}, the {sector} company said on "
     u"{weekday}, as customers held back on orders for {product}.",
     bad},
    {u"{co} ({code}) earned {profit} in {quarternoun}, {up} {pchg}% from a year earlier, according to a "
     u"statement filed with the exchange on {weekday}."},
};
constexpr Phrase earningsParagraphs[] = {
    {u"Revenue {rose} {chg}% to {rev} from {revprev} in the same period last year. Earnings per share came "
     u"to {eps}, against {epsprev}."},
    {u"Gross margin was {margin}%, compared with {marginprev}% a year earlier."},
    {u"\"Demand for {product} held up better than we had planned for, and {site} ran close to its limits,\" "
     u"chief financial officer {finance} told an online briefing.",
     good},
    {u"\"Customers take longer to decide and order less at a time,\" chief financial officer {finance} told "
     u"an online briefing. \"We see the low point behind us by the end of {nextquarter}.\"",
     bad},
    {u"Sales of {product2} made up {share}% of revenue in {quarternoun}, and the company expects that share "
     u"to grow as new capacity opens in {site}."},
    {u"Operating expenses were broadly flat. Research spending came to {rnd}% of revenue, and the tax rate "
     u"was in line with the previous year."},
    {u"For {thisquarter} the company guides for revenue between {guidelow} and {guidehigh}, and for a gross "
     u"margin within a percentage point of the last reported one."},
    {u"{analyst}, an analyst at {broker}, said the result was ahead of the house estimate and that the order "
     u"book pointed to another firm quarter.",
     good},
    {u"{analyst}, an analyst at {broker}, said the result was weaker than the house estimate and that a "
     u"recovery depended on how fast channel stocks clear.",
     bad},
    {u"The board will decide on the distribution for the year at its next regular meeting."},
};

constexpr Phrase revenueHeadlines[] = {
    {u"{co} {month} revenue {rises} {chg}% on year to {rev}"},
    {u"{co} {month} sales {rev}, {up} {chg}% on year"},
    {u"{month} revenue at {co} climbs to {rev}", good},
    {u"{month} revenue at {co} slips to {rev}", bad},
    {u"{co} sales grow {chg}% in {month}, led by {product}", good},
    {u"{co} sales shrink {chg}% in {month} on softer {product}", bad},
};
constexpr Phrase revenueLeads[] = {
    {u"{co} ({code}) said its revenue for {month} was {rev}, {up} {chg}% from {revprev} in the same month of "
     u"last year."},
    {u"Revenue at {sector} company {co} ({code}) {rose} {chg}% on the year in {month} to {rev}, a filing "
     u"showed on {weekday}."},
};
constexpr Phrase revenueParagraphs[] = {
    {u"Compared with the month before, sales were {monup} {mom}%."},
    {u"For the year to date, revenue came to {ytd}, {up} {ytdchg}% from the same months of last year."},
    {u"The company named higher sales of {product} and a better price mix as the main reasons.", good},
    {u"The company named the timing of orders for {product} and fewer working days as the main reasons.",
     bad},
    {u"It expects {nextmonth} to be similar to {month}, with {product2} taking a larger share."},
};

constexpr Phrase orderHeadlines[] = {
    {u"{co} wins {deal} order for {product} from {foreign}"},
    {u"{foreign} picks {co} to supply {product}"},
    {u"{co} signs {years}-year deal with {foreign} for {product}"},
    {u"{co} books {deal} in orders for {product}"},
    {u"{co} ships first {product} to {foreign}"},
    {u"{co} lands {foreign} contract worth {deal}"},
};
constexpr Phrase orderLeads[] = {
    {u"{co} ({code}) has agreed to supply {foreign} with {product} worth about {deal} over {years} years, "
     u"the {sector} company said on {weekday}."},
    {u"{foreign} has chosen {co} ({code}) as a supplier of {product}, in a contract that the company puts at "
     u"{deal} over {years} years."},
};
constexpr Phrase orderParagraphs[] = {
    {u"Deliveries have started from the plant in {site} and reach full volume in {nextquarter}. The contract "
     u"can be extended twice by a year each time."},
    {u"\"We were asked for delivery times that only a line close to the customer can keep,\" said chief "
     u"executive {chief}. \"That is what we built in {site}.\""},
    {u"{foreign} did not reply to questions about the contract. Its purchases of {product} went until now "
     u"mostly to suppliers outside the region."},
    {u"The order equals about {ordershare}% of the company's revenue of last year. Rival {peer} ({peercode}) "
     u"also took part in the tender."},
    {u"The company will add {workers} people in {site} over the next twelve months."},
    {u"{broker} estimates that the contract carries a margin slightly above the company's average of "
     u"{margin}%."},
};

constexpr Phrase dividendHeadlines[] = {
    {u"{co} proposes cash dividend of {cash} per share"}, {u"{co} to pay {cash} a share, yield {yield}%"},
    {u"{co} raises payout to {cash} per share", good},    {u"{co} trims dividend to {cash} per share", bad},
    {u"{co} shares go ex-dividend on {exdate}"},
};
constexpr Phrase dividendLeads[] = {
    {u"The board of {co} ({code}) on {weekday} proposed a cash dividend of {cash} per share, against "
     u"{cashprev} last year."},
    {u"{co} ({code}) plans to pay its shareholders {cash} per share in cash, a yield of {yield}% on the last "
     u"closing price of {price}."},
};
constexpr Phrase dividendParagraphs[] = {
    {u"The shares will trade ex-dividend on {exdate} and the money will be paid on {paydate}."},
    {u"The payout equals {payout}% of last year's earnings, {higher} than the share distributed the year "
     u"before."},
    {u"\"We keep what the new lines need and give back the rest,\" chief financial officer {finance} said in "
     u"a statement."},
    {u"No stock dividend is planned. The annual meeting on {meeting} has to approve the proposal."},
};

constexpr Phrase boardHeadlines[] = {
    {u"{co} names {newcomer} as {role}"},          {u"{co} {role} {leaver} steps down; {newcomer} to follow"},
    {u"{newcomer} to take over as {co} {role}"},   {u"{co} changes {role} from {effective}"},
    {u"Board of {co} appoints {newcomer} {role}"},
};
constexpr Phrase boardLeads[] = {
    {u"{co} ({code}) said on {weekday} that {newcomer} will become {role} on {effective}, following "
     u"{leaver}, who leaves the post for personal reasons."},
    {u"The board of {sector} company {co} ({code}) has appointed {newcomer} as {role}, with effect from "
     u"{effective}."},
};
constexpr Phrase boardParagraphs[] = {
    {u"{newcomer} joined the company {years} years ago and has run the business with {product} in {site} "
     u"since."},
    {u"{leaver} will stay on as an adviser until the end of {nextquarter} to hand over the work."},
    {u"Chairman {chair} thanked the outgoing officer for building up the business with {product2}."},
    {u"The change does not touch operations or the financial plan for the year, the company said."},
};

constexpr Phrase incidentHeadlines[] = {
    {u"{incidentcap} halts {co} plant in {site}"},
    {u"{co} says {incident} at {site} plant under control"},
    {u"{co} expects {loss} loss after {incident} in {site}"},
    {u"{co} restarts part of {site} plant after {incident}"},
    {u"{co} {site} output to return within {days} days of {incident}"},
};
constexpr Phrase incidentLeads[] = {
    {u"{co} ({code}) stopped part of its production of {product} in {site} after {incidentart} early on "
     u"{weekday}. Nobody was hurt, the company said."},
    {u"{incidentartcap} has interrupted production at the {site} plant of {co} ({code}), a supplier of "
     u"{product}."},
};
constexpr Phrase incidentParagraphs[] = {
    {u"The company puts the first estimate of the damage at {loss} before insurance and expects normal "
     u"output within {days} days."},
    {u"The lines concerned turn out about {share}% of its {product}. Customers are being supplied from stock "
     u"and from a second site."},
    {u"\"Safety systems worked as they should and everybody left the building within minutes,\" plant "
     u"manager {leaver} said."},
    {u"Local authorities are looking into the cause. The labour office inspected the site in the afternoon."},
    {u"Rival {peer} ({peercode}) said it had not received orders moved from the plant so far."},
};

constexpr Phrase productHeadlines[] = {
    {u"{co} unveils new {product}, volume output in {nextquarter}"},
    {u"{co} bets on {product2} for next leg of growth"},
    {u"{co} to sample next-generation {product} in {nextquarter}"},
    {u"{co} cuts energy used in {product} by {saving}%"},
    {u"{co} opens {site} lab for {product}"},
};
constexpr Phrase productLeads[] = {
    {u"{co} ({code}) has presented a new generation of {product}, developed in its laboratory in {site}, "
     u"that it says takes {saving}% less energy to make than the previous one."},
    {u"{sectorcap} company {co} ({code}) will start volume production in {nextquarter} of the new {product} "
     u"that its laboratory in {site} has developed, chief executive {chief} said on {weekday}."},
};
constexpr Phrase productParagraphs[] = {
    {u"Samples have gone to {foreign} and two further customers. A team of {workers} engineers worked on the "
     u"design for two years."},
    {u"\"Our customers asked for lower running costs, not for more functions,\" {chief} said at the "
     u"presentation."},
    {u"The company expects {product} and {product2} together to make up {share}% of revenue next year."},
    {u"Prices were not disclosed. {broker} expects them to lie a tenth above those of the older range."},
};

constexpr Phrase legalHeadlines[] = {
    {u"{co} sues {foreign} over patents for {product}"},
    {u"{foreign} takes {co} to court over design of {product}"},
    {u"Court rejects {foreign} claim against {co}", good},
    {u"Court orders {co} to pay {foreign} {loss}", bad},
    {u"{co}, {foreign} settle patent dispute over {product}", good},
};
constexpr Phrase legalLeads[] = {
    {u"The long-running patent dispute between {co} ({code}) and {foreign} over the design of {product} took "
     u"a new turn on {weekday}, when both companies filed statements about it."},
    {u"{co} ({code}) said on {weekday} that its dispute with {foreign} over patents for {product} had no "
     u"effect on deliveries or on its finances for the quarter."},
};
constexpr Phrase legalParagraphs[] = {
    {u"At issue are {count} patents filed between {yearspast} and last year. {foreign} had put its claims at "
     u"{loss}."},
    {u"\"We respect the intellectual property of others and expect the same,\" the company's general "
     u"counsel, {newcomer}, said."},
    {u"{analyst} of {broker} said cases of this kind usually end in a licence, and that the sums were small "
     u"beside annual revenue of {annual}."},
    {u"The next hearing is set for {meeting}."},
};

constexpr TopicText texts[] = {
    {Topic::Earnings, earningsHeadlines, earningsLeads, earningsParagraphs},
    {Topic::MonthlyRevenue, revenueHeadlines, revenueLeads, revenueParagraphs},
    {Topic::Orders, orderHeadlines, orderLeads, orderParagraphs},
    {Topic::Dividend, dividendHeadlines, dividendLeads, dividendParagraphs},
    {Topic::Board, boardHeadlines, boardLeads, boardParagraphs},
    {Topic::Incident, incidentHeadlines, incidentLeads, incidentParagraphs},
    {Topic::Product, productHeadlines, productLeads, productParagraphs},
    {Topic::Legal, legalHeadlines, legalLeads, legalParagraphs},
};

}  // namespace

std::span<const TopicText> englishCompanyTexts() {
    return texts;
}

}  // namespace wirepane::sample
