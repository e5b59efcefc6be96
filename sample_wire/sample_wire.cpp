// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/sample_wire.h"

#include "sample_wire/company_register.h"
#include "sample_wire/day_plan.h"
#include "sample_wire/market_state.h"
#include "sample_wire/news_desk.h"
#include "sample_wire/phrasebook.h"
#include "sample_wire/story_writer.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <map>

namespace wirepane {

namespace {

using namespace sample;

// After the headline of a flash, in seconds.
constexpr int earliestStory = 20;
constexpr int latestStory = 90;

SampleOptions bounded(SampleOptions options) {
    options.days = std::clamp(options.days, 1, SampleOptions::mostDays);
    options.headlinesPerDay = std::clamp(options.headlinesPerDay, 1, SampleOptions::mostHeadlinesPerDay);
    return options;
}

// What the plan of the news depends on; wires that differ in it share no identities.
std::uint64_t planSeedOf(const SampleOptions& options) {
    std::uint64_t seed = hashOf(options.seed, static_cast<std::uint64_t>(options.headlinesPerDay),
                                static_cast<std::uint64_t>(options.correctionPermille));
    for (unsigned char service : options.services)
        seed = hashOf(seed, service);
    return seed;
}

void appendPadded(QString& text, std::int64_t value, int digits) {
    const QString number = QString::number(value);
    for (qsizetype i = number.size(); i < digits; ++i)
        text += u'0';
    text += number;
}

}  // namespace

class SampleWire::Desk {
public:
    Desk(const SampleData& data, SampleOptions theOptions)
        : options(bounded(std::move(theOptions))),
          companies(data.words),
          markets(data.words, options.seed),
          world{data.words, companies, markets, options.seed},
          writer(world, data.book),
          planSeed(planSeedOf(options)),
          plan(options.services, options.headlinesPerDay, planSeed) {
        for (const Category& category : data.words.categories)
            categories.insert(category.id, category);
    }

    bool run(const Taker& take) const {
        const bool isWhole = options.leftOut == 0;
        return (!isWhole || (handCategories(take) && handSymbols(take) && handQuotes(take))) &&
               handNews(take);
    }
    void follow(std::int64_t moment, const TimedTaker& take) const;
    bool tick(std::int64_t moment, const Taker& take) const;

private:
    bool handCategories(const Taker& take) const;
    bool handSymbols(const Taker& take) const;
    bool handQuotes(const Taker& take) const;
    bool handNews(const Taker& take) const;

    using Hand = std::function<bool(const PlannedItem&, const Assignment&)>;

    bool handDay(Day day, const std::vector<PlannedItem>& items, const Hand& hand) const;
    // When the story of a flash is sent.
    std::int64_t lateStoryTime(const PlannedItem& planned) const;
    // As the wire has it at a moment.
    NewsItem itemOf(const PlannedItem& planned, const Assignment& assignment, std::int64_t moment) const;
    std::vector<CSymbolInfo> relatedOf(const Scene& scene) const;
    QString identityOf(unsigned char service, const Assignment& assignment) const;

    SampleOptions options;
    CompanyRegister companies;
    MarketState markets;
    World world;
    StoryWriter writer;
    std::uint64_t planSeed;
    DayPlan plan;
    QHash<std::int32_t, Category> categories;
};

bool SampleWire::Desk::handCategories(const Taker& take) const {
    for (unsigned char service : options.services) {
        std::vector<std::int32_t> ids;
        for (const Beat& beat : roleOf(service).beats)
            if (std::find(ids.begin(), ids.end(), beat.category) == ids.end())
                ids.push_back(beat.category);
        for (std::int32_t id : ids)
            if (!take(CategoryItem{service, id, categories[id].name, categories[id].colour}))
                return false;
    }
    return true;
}

bool SampleWire::Desk::handSymbols(const Taker& take) const {
    for (unsigned char market : {stockExchangeService, emergingBoardService, hongKongService})
        for (const Company& company : companies.companies(market))
            if (!take(SymbolItem{market, company.code, company.chinese, 1, company.english}))
                return false;
    return std::all_of(companies.warrants().begin(), companies.warrants().end(),
                       [&take](const Warrant& warrant) {
                           return take(SymbolItem{warrantService, warrant.code, warrant.name, 1});
                       });
}

bool SampleWire::Desk::handQuotes(const Taker& take) const {
    const LocalTime at = LocalTime::fromUtc(options.now);
    const auto hand = [&take](const CSymbolInfo& symbol, const Quote& quote, std::int64_t volume) {
        return take(QuoteItem{symbol.market, symbol.code, static_cast<double>(quote.now) / 100,
                              static_cast<double>(quote.now - quote.previous) / 100, volume});
    };
    for (unsigned char market : {stockExchangeService, emergingBoardService, hongKongService})
        for (const Company& company : companies.companies(market))
            if (!hand(company.symbol(), markets.share(company, at), markets.volume(company, at)))
                return false;
    return std::all_of(companies.warrants().begin(), companies.warrants().end(), [&](const Warrant& warrant) {
        return hand(warrant.symbol(), markets.warrant(warrant, at), markets.volume(warrant, at));
    });
}

bool SampleWire::Desk::handNews(const Taker& take) const {
    const Hand hand = [&](const PlannedItem& item, const Assignment& assignment) {
        // What was sent for the quiet before the present is not followed: its stories come with it.
        return take(itemOf(item, assignment, item.filler ? options.now + latestStory : options.now));
    };
    const Day today = LocalTime::fromUtc(options.now).day;
    const std::int64_t end = today.number - std::max(options.leftOut - 1, 0);
    for (Day day{today.number - options.days + 1}; day.number < end; ++day.number)
        if (!handDay(day, plan.day(day), hand))
            return false;
    return options.leftOut > 0 || handDay(today, plan.dayUntil(options.now), hand);
}

void SampleWire::Desk::follow(std::int64_t moment, const TimedTaker& take) const {
    std::multimap<std::int64_t, NewsItem> lateStories;
    const auto handLateStories = [&](std::int64_t until) {
        while (!lateStories.empty() && lateStories.begin()->first <= until) {
            auto next = lateStories.extract(lateStories.begin());
            if (next.key() >= moment && !take(next.key(), std::move(next.mapped())))
                return false;
        }
        return true;
    };
    const Hand hand = [&](const PlannedItem& planned, const Assignment& assignment) {
        // Stories that are to come after the moment belong to headlines from before it, too.
        if (planned.time < moment - latestStory)
            return true;
        // While nobody listened, nothing had to fill the quiet.
        if (planned.filler && planned.time >= moment && planned.time < options.now)
            return true;
        if (!handLateStories(planned.time))
            return false;
        NewsItem item = itemOf(planned, assignment, planned.time);
        if (!item.story) {
            const std::int64_t sentAt = lateStoryTime(planned);
            lateStories.emplace(sentAt, itemOf(planned, assignment, sentAt));
        }
        return planned.time < moment || take(planned.time, std::move(item));
    };
    Day day = LocalTime::fromUtc(moment - latestStory).day;
    while (handDay(day, plan.followedDay(day), hand))
        ++day.number;
}

bool SampleWire::Desk::tick(std::int64_t moment, const Taker& take) const {
    constexpr int symbols = 60;  // each company once in some fifteen seconds
    constexpr std::array traded{stockExchangeService, stockExchangeService, emergingBoardService,
                                hongKongService};
    const LocalTime at = LocalTime::fromUtc(moment);
    Random random(hashOf(options.seed, static_cast<std::uint64_t>(moment)));
    for (int i = 0; i < symbols; ++i) {
        const unsigned char market = traded[static_cast<std::size_t>(i) % traded.size()];
        const auto& listed = companies.companies(market);
        const Company& company =
            listed[static_cast<std::size_t>(random.between(0, static_cast<int>(listed.size()) - 1))];
        const Quote quote = markets.share(company, at);
        const std::int64_t step = std::max<std::int64_t>(quote.now / 500, 1);
        const std::int64_t now = std::max(step, quote.now + step * random.between(-3, 3));
        if (!take(QuoteItem{market, company.code, static_cast<double>(now) / 100,
                            static_cast<double>(now - quote.previous) / 100, markets.volume(company, at)}))
            return false;
    }
    return true;
}

bool SampleWire::Desk::handDay(Day day, const std::vector<PlannedItem>& items, const Hand& hand) const {
    std::vector<NewsDesk> desks;
    for (unsigned char service : plan.services())
        desks.emplace_back(service, day, planSeed, options.correctionPermille);
    return std::all_of(items.begin(), items.end(),
                       [&](const PlannedItem& item) { return hand(item, desks[item.service].next(item)); });
}

std::int64_t SampleWire::Desk::lateStoryTime(const PlannedItem& planned) const {
    const std::uint64_t draw = hashOf(planSeed, planned.ordinal, static_cast<std::uint64_t>(planned.time));
    return planned.time + inRange(draw, earliestStory, latestStory);
}

NewsItem SampleWire::Desk::itemOf(const PlannedItem& planned, const Assignment& assignment,
                                  std::int64_t moment) const {
    Scene scene(world, assignment.setting);
    NewsItem item;
    item.service = plan.services()[planned.service];
    item.identity = identityOf(item.service, assignment);
    item.version = assignment.version;
    item.time = planned.time;
    item.title = writer.headline(scene, assignment);
    if (options.stories && options.storyLength)
        item.story = writer.story(scene, assignment, {options.storyLength->least, options.storyLength->most});
    else if (options.stories && (!StoryWriter::isFlash(scene, assignment) ||
                                 (options.lateStories && lateStoryTime(planned) <= moment)))
        item.story = writer.story(scene, assignment);
    else if (options.stories && options.lateStories)
        item.story.reset();
    item.categoryId = assignment.beat->category;
    item.category = categories[assignment.beat->category].name;
    item.related = relatedOf(scene);
    return item;
}

std::vector<CSymbolInfo> SampleWire::Desk::relatedOf(const Scene& scene) const {
    std::vector<CSymbolInfo> related;
    if (scene.warrant())
        related.push_back(scene.warrant()->symbol());
    if (isAboutCompany(scene.topic()))
        related.push_back(scene.company().symbol());
    for (const Company* company : scene.mentioned())
        if (related.empty() || related.back() != company->symbol())
            related.push_back(company->symbol());
    return related;
}

QString SampleWire::Desk::identityOf(unsigned char service, const Assignment& assignment) const {
    const Day day = assignment.setting.at.day;
    QString identity;
    identity.reserve(48);
    identity += u"sample:";
    identity += QString::number(planSeed >> 32, 16);
    identity += u':';
    appendPadded(identity, service, 1);
    identity += u':';
    appendPadded(identity, (day.year() * 100 + day.month()) * 100 + day.dayOfMonth(), 8);
    identity += u':';
    appendPadded(identity, assignment.ordinal, 6);
    return identity;
}

SampleData SampleData::load(QStringList& faults) {
    SampleData data;
    data.words = WordTables::load(faults);
    data.book = Phrasebook::load(faults);
    return data;
}

SampleWire::SampleWire(const SampleData& data, SampleOptions options)
    : desk(std::make_unique<const Desk>(data, std::move(options))) {}

SampleWire::~SampleWire() = default;

bool SampleWire::run(const Taker& take) const {
    return desk->run(take);
}

void SampleWire::follow(std::int64_t moment, const TimedTaker& take) const {
    desk->follow(moment, take);
}

bool SampleWire::tick(std::int64_t moment, const Taker& take) const {
    return desk->tick(moment, take);
}

}  // namespace wirepane
