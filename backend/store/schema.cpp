// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/schema.h"

#include <array>

namespace wirepane {

namespace {

constexpr const char* firstVersion = R"sql(
PRAGMA application_id = 1464880709;

CREATE TABLE services(
    id INTEGER PRIMARY KEY CHECK(id BETWEEN 1 AND 255),
    full_name TEXT NOT NULL,
    short_name TEXT NOT NULL,
    position INTEGER NOT NULL,
    authorised INTEGER NOT NULL DEFAULT 1);

CREATE TABLE categories(
    space INTEGER NOT NULL CHECK(space IN (0, 52)),
    id INTEGER NOT NULL,
    name TEXT NOT NULL,
    colour TEXT NOT NULL DEFAULT '',
    PRIMARY KEY(space, id),
    UNIQUE(space, name)) WITHOUT ROWID;

CREATE TABLE service_categories(
    service INTEGER NOT NULL REFERENCES services(id),
    category INTEGER NOT NULL,
    space INTEGER NOT NULL CHECK(space = CASE service WHEN 52 THEN 52 ELSE 0 END),
    PRIMARY KEY(service, category),
    FOREIGN KEY(space, category) REFERENCES categories(space, id)) WITHOUT ROWID;

CREATE TABLE symbols(
    market INTEGER NOT NULL,
    code TEXT NOT NULL,
    name TEXT NOT NULL,
    category INTEGER NOT NULL,
    PRIMARY KEY(market, code)) WITHOUT ROWID;

CREATE TABLE headlines(
    id INTEGER PRIMARY KEY,
    service INTEGER NOT NULL REFERENCES services(id),
    time INTEGER NOT NULL,
    sequence INTEGER NOT NULL,
    day INTEGER NOT NULL,
    category INTEGER NOT NULL,
    version INTEGER NOT NULL,
    received INTEGER NOT NULL,
    identity TEXT NOT NULL,
    title TEXT NOT NULL);
CREATE UNIQUE INDEX headlines_by_time ON headlines(service, time, sequence);
CREATE UNIQUE INDEX headlines_by_number ON headlines(service, day, sequence);
CREATE UNIQUE INDEX headlines_by_identity ON headlines(service, identity);
CREATE INDEX headlines_by_category ON headlines(service, category, time, sequence);

CREATE TABLE numbering(
    service INTEGER NOT NULL REFERENCES services(id),
    day INTEGER NOT NULL,
    last INTEGER NOT NULL,
    PRIMARY KEY(service, day)) WITHOUT ROWID;

CREATE TABLE stories(
    headline INTEGER PRIMARY KEY REFERENCES headlines(id) ON DELETE CASCADE,
    text TEXT NOT NULL);

CREATE TABLE related_symbols(
    headline INTEGER NOT NULL REFERENCES headlines(id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    market INTEGER NOT NULL,
    code TEXT NOT NULL,
    service INTEGER NOT NULL,
    time INTEGER NOT NULL,
    sequence INTEGER NOT NULL,
    PRIMARY KEY(headline, position)) WITHOUT ROWID;
CREATE INDEX headlines_by_symbol ON related_symbols(service, market, code, time, sequence);

CREATE VIEW news_text(id, title, story) AS
    SELECT headlines.id, headlines.title, replace(coalesce(stories.text, ''), '@@@@', char(10))
    FROM headlines LEFT JOIN stories ON stories.headline = headlines.id;
CREATE VIRTUAL TABLE news_search USING fts5(
    title, story, content='news_text', content_rowid='id', tokenize='unicode61');
)sql";

constexpr const char* arrivalsAndPositions = R"sql(
CREATE TABLE arrivals(
    position INTEGER PRIMARY KEY,
    headline INTEGER NOT NULL,
    only_story INTEGER NOT NULL);

CREATE TABLE feed_positions(
    source TEXT PRIMARY KEY,
    position TEXT NOT NULL) WITHOUT ROWID;
)sql";

// The index is filled when its rules are found missing (see search_rules.h).
constexpr const char* ownSearchWords = R"sql(
DROP TABLE news_search;
CREATE VIRTUAL TABLE news_search USING fts5(
    title, story, content='news_text', content_rowid='id', tokenize='wirepane', columnsize=0);
CREATE TABLE search_rules(fingerprint INTEGER NOT NULL);
)sql";

constexpr const char* quotes = R"sql(
CREATE TABLE quotes(
    market INTEGER NOT NULL CHECK(market BETWEEN 1 AND 255),
    code TEXT NOT NULL,
    last REAL NOT NULL,
    change REAL NOT NULL,
    volume INTEGER NOT NULL,
    revision INTEGER NOT NULL,
    PRIMARY KEY(market, code)) WITHOUT ROWID;
CREATE UNIQUE INDEX quotes_by_revision ON quotes(revision);
)sql";

// Of a headline that was replaced and has another key since then: the one that it had.
constexpr const char* goneKeys = R"sql(
ALTER TABLE arrivals ADD COLUMN gone_service INTEGER;
ALTER TABLE arrivals ADD COLUMN gone_time INTEGER;
ALTER TABLE arrivals ADD COLUMN gone_sequence INTEGER;
)sql";

// What an import has brought so far stands among the rest, in blocks of ids that readers pass over: those
// look through the views. A block that is shown and still listed is not in the search index yet.
constexpr const char* blocksOfImports = R"sql(
ALTER TABLE headlines RENAME TO all_headlines;
CREATE TABLE import_blocks(
    first INTEGER PRIMARY KEY,
    last INTEGER NOT NULL,
    hidden INTEGER NOT NULL);
CREATE TABLE held_links(
    service INTEGER NOT NULL,
    category INTEGER NOT NULL,
    space INTEGER NOT NULL,
    PRIMARY KEY(service, category)) WITHOUT ROWID;
CREATE TABLE set_aside(
    headline INTEGER PRIMARY KEY,
    identity TEXT NOT NULL);

CREATE VIEW headlines AS SELECT * FROM all_headlines WHERE
    +id < (SELECT coalesce(min(first), 9223372036854775807) FROM import_blocks WHERE hidden) OR
    coalesce((SELECT last < all_headlines.id OR NOT hidden FROM import_blocks
              WHERE first <= all_headlines.id ORDER BY first DESC LIMIT 1), 1);
CREATE VIEW shown_symbols AS SELECT * FROM related_symbols WHERE
    +headline < (SELECT coalesce(min(first), 9223372036854775807) FROM import_blocks WHERE hidden) OR
    coalesce((SELECT last < headline OR NOT hidden FROM import_blocks
              WHERE first <= headline ORDER BY first DESC LIMIT 1), 1);
)sql";

// Before this moment news is taken out, and not taken in; `compacting`: what it left in the search index is
// being taken out, too.
constexpr const char* retention = R"sql(
CREATE TABLE retention(
    id INTEGER PRIMARY KEY CHECK(id = 1),
    horizon INTEGER NOT NULL,
    compacting INTEGER NOT NULL);
)sql";

// Sources over the network; `item_origins`: which of them have brought a piece of news, and under which link,
// so that the same piece from two of them is known again.
constexpr const char* networkSources = R"sql(
CREATE TABLE sources(
    name TEXT PRIMARY KEY,
    position INTEGER NOT NULL,
    definition TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE source_list(revision INTEGER NOT NULL);
INSERT INTO source_list(revision) VALUES(0);
CREATE TABLE source_states(
    source TEXT PRIMARY KEY,
    last_try INTEGER NOT NULL,
    last_success INTEGER NOT NULL,
    next_try INTEGER NOT NULL,
    day INTEGER NOT NULL,
    items INTEGER NOT NULL,
    delay INTEGER NOT NULL,
    fault TEXT NOT NULL,
    gaps TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE item_origins(
    service INTEGER NOT NULL,
    identity TEXT NOT NULL,
    source TEXT NOT NULL,
    link TEXT NOT NULL,
    taken INTEGER NOT NULL,
    PRIMARY KEY(service, identity, source)) WITHOUT ROWID;
CREATE INDEX item_origins_by_link ON item_origins(service, link, identity);
CREATE INDEX item_origins_by_age ON item_origins(taken);
)sql";

constexpr const char* englishNames = R"sql(
ALTER TABLE symbols ADD COLUMN english_name TEXT NOT NULL DEFAULT '';
)sql";

// What news was before it was sent again with another title or story, oldest first. `differs`: not yet when
// only the story is missing now and still to come. Both tables follow a headline to its new id.
constexpr const char* versionsAndWithdrawals = R"sql(
CREATE TABLE versions(
    headline INTEGER NOT NULL REFERENCES all_headlines(id) ON DELETE CASCADE ON UPDATE CASCADE,
    number INTEGER NOT NULL,
    time INTEGER NOT NULL,
    received INTEGER NOT NULL,
    differs INTEGER NOT NULL,
    title TEXT NOT NULL,
    text TEXT,
    UNIQUE(headline, number));
CREATE TABLE withdrawals(
    headline INTEGER PRIMARY KEY REFERENCES all_headlines(id) ON DELETE CASCADE ON UPDATE CASCADE,
    moment INTEGER NOT NULL,
    reason TEXT NOT NULL);
)sql";

// The text of a story, and of a version, may be packed: a blob (see packed_text.h).
constexpr const char* packedStories = R"sql(
DROP VIEW news_text;
CREATE VIEW news_text(id, title, story) AS
    SELECT all_headlines.id, all_headlines.title,
           replace(coalesce(unpacked(stories.text, stories.headline), ''), '@@@@', char(10))
    FROM all_headlines LEFT JOIN stories ON stories.headline = all_headlines.id;
)sql";

// How far the search index has come that is being made beside the one in use, and by which rules; at most one
// row (see index_renewal.h).
constexpr const char* indexRenewal = R"sql(
CREATE TABLE index_renewal(
    fingerprint INTEGER NOT NULL,
    indexed INTEGER NOT NULL);
)sql";

// What the user has read and starred. News without a mark that was published up to the moment of
// `marks_begin` counts as seen: nobody who begins to read has missed what was there before him.
constexpr const char* readingMarks = R"sql(
CREATE TABLE marks(
    headline INTEGER PRIMARY KEY REFERENCES all_headlines(id) ON DELETE CASCADE ON UPDATE CASCADE,
    state INTEGER NOT NULL CHECK(state BETWEEN 0 AND 2),
    starred INTEGER NOT NULL,
    was_read INTEGER NOT NULL,
    shown INTEGER NOT NULL,
    opened INTEGER NOT NULL);
CREATE INDEX starred_marks ON marks(headline) WHERE starred;
CREATE TABLE marks_begin(moment INTEGER NOT NULL);
INSERT INTO marks_begin(moment) SELECT coalesce(max(time), 0) FROM all_headlines;
)sql";

// What an import has to change once its news is shown (see held_changes.h), up to `last` of `due_changes`
// now; at most one row there.
constexpr const char* heldChanges = R"sql(
CREATE TABLE held_changes(
    position INTEGER PRIMARY KEY,
    item BLOB NOT NULL);
CREATE TABLE due_changes(last INTEGER NOT NULL);
)sql";

// The prices of each symbol and day, packed (see packed_prices.h); `moment`: the beginning of the minute of
// the last quote, whose price stands there until a later minute begins. 0: it came before prices were kept.
constexpr const char* prices = R"sql(
ALTER TABLE quotes ADD COLUMN moment INTEGER NOT NULL DEFAULT 0;
CREATE TABLE day_prices(
    market INTEGER NOT NULL,
    code TEXT NOT NULL,
    day INTEGER NOT NULL,
    low REAL NOT NULL,
    high REAL NOT NULL,
    packed BLOB NOT NULL,
    PRIMARY KEY(market, code, day)) WITHOUT ROWID;
CREATE INDEX day_prices_by_day ON day_prices(day);
CREATE INDEX day_price_ranges ON day_prices(market, code, day, low, high);
)sql";

// What the user's rules have matched last (see backend/alerts), and in one row how far they have looked at
// the arrivals and which of it the user has seen.
constexpr const char* alerts = R"sql(
CREATE TABLE alerts(
    number INTEGER PRIMARY KEY,
    rule TEXT NOT NULL,
    service INTEGER NOT NULL,
    time INTEGER NOT NULL,
    sequence INTEGER NOT NULL,
    title TEXT NOT NULL,
    words TEXT NOT NULL,
    received INTEGER NOT NULL,
    matched INTEGER NOT NULL,
    told INTEGER NOT NULL,
    outcome INTEGER NOT NULL,
    UNIQUE(rule, service, time, sequence));
CREATE TABLE alert_state(
    one INTEGER PRIMARY KEY CHECK(one = 1),
    position INTEGER NOT NULL,
    seen INTEGER NOT NULL);
)sql";

// When the user was first shown a version, and read it; 0: never.
constexpr const char* readVersions = R"sql(
ALTER TABLE versions ADD COLUMN shown INTEGER NOT NULL DEFAULT 0;
ALTER TABLE versions ADD COLUMN opened INTEGER NOT NULL DEFAULT 0;
)sql";

// What was corrected under its key is matched again, under the title that it has now.
constexpr const char* alertsOfTitles = R"sql(
ALTER TABLE alerts RENAME TO alerts_of_keys;
CREATE TABLE alerts(
    number INTEGER PRIMARY KEY,
    rule TEXT NOT NULL,
    service INTEGER NOT NULL,
    time INTEGER NOT NULL,
    sequence INTEGER NOT NULL,
    title TEXT NOT NULL,
    words TEXT NOT NULL,
    received INTEGER NOT NULL,
    matched INTEGER NOT NULL,
    told INTEGER NOT NULL,
    outcome INTEGER NOT NULL,
    UNIQUE(rule, service, time, sequence, title));
INSERT INTO alerts SELECT * FROM alerts_of_keys;
DROP TABLE alerts_of_keys;
)sql";

// Where the diary beside the store ends (see backend/diary); one row at most.
constexpr const char* diaryHead = R"sql(
CREATE TABLE diary_head(
    one INTEGER PRIMARY KEY CHECK(one = 1),
    entries INTEGER NOT NULL,
    seal TEXT NOT NULL);
)sql";

constexpr std::array steps{firstVersion,   arrivalsAndPositions,
                           ownSearchWords, quotes,
                           goneKeys,       blocksOfImports,
                           retention,      networkSources,
                           englishNames,   versionsAndWithdrawals,
                           packedStories,  indexRenewal,
                           readingMarks,   heldChanges,
                           prices,         alerts,
                           readVersions,   alertsOfTitles,
                           diaryHead};

}  // namespace

std::span<const char* const> storeMigrations() {
    return steps;
}

std::int64_t storeVersion() {
    return static_cast<std::int64_t>(steps.size());
}

}  // namespace wirepane
