// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/database.h"
#include "backend/search/news_search.h"
#include "backend/store/item_check.h"
#include "backend/store/store_file.h"
#include "backend/store/store_writer.h"
#include "backend/words/search_words.h"
#include "fuzz/support/fuzz_input.h"
#include "tests/support/keyword_rule.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Made before the first run, whose time is limited.
[[maybe_unused]] const CharacterFolding& characterFolding = CharacterFolding::instance();

constexpr int itemsPerStore = 1000;

// A store that holds one piece of news at a time.
class OneItemStore {
public:
    OneItemStore()
        : written(opened(openStore(folder.filePath(u"store"_s)))),
          read(opened(Database::open(written->path(), Database::Mode::Read, {}))),
          writer(*written),
          search(*read) {}

    NewsItem item{1, u"i"_s, 0, 1072915200, {}, {}, {}, {}, {}, {}, {}, {}};

    bool isFull() const { return item.version == itemsPerStore; }

    // Whether the store takes news with these texts; `item` is then as it stands there.
    bool take(const QString& title, const QString& story) {
        item.title = title;
        item.story = story;
        item = cleaned(item);
        ++item.version;
        promise(bool(writer.begin()), "a transaction begins");
        const Result<TakeOutcome> outcome = writer.take(item);
        promise(outcome && bool(writer.commit()), "a store takes news");
        return outcome.value().take == Take::TakenIn;
    }
    bool finds(const CSearch& condition) {
        const auto found = search.find(item.service, condition);
        promise(found.has_value(), "a search is answered");
        return !found->empty();
    }

private:
    static std::unique_ptr<Database> opened(Result<std::unique_ptr<Database>> database) {
        promise(bool(database), "a store is made and opened");
        return std::move(database.value());
    }

    QTemporaryDir folder;
    std::unique_ptr<Database> written;
    std::unique_ptr<Database> read;
    StoreWriter writer;
    NewsSearch search;
};

enum class LineEnds { Words, Blanks };

// The words of a text one behind the other.
QString wordsOf(const QString& text, LineEnds lineEnds) {
    const QByteArray utf8 = text.toUtf8();
    QString words = u" "_s;
    WordReader reader(utf8);
    while (reader.next()) {
        if (lineEnds == LineEnds::Words || !reader.isLineEnd())
            words += QString::fromUtf8(reader.word().data(), qsizetype(reader.word().size())) + u' ';
    }
    return words;
}

// What the search has to answer, found without an index.
bool holds(const QString& title, const QString& story, const CSearch& condition) {
    std::size_t asked = 0;
    std::size_t held = 0;
    for (const QString& keyword : condition.keywords) {
        const QString text = keywordText(keyword);
        if (text.isEmpty())
            continue;
        const QString phrase = wordsOf(text, LineEnds::Blanks);
        const bool found = (condition.scope != 1 && wordsOf(title, LineEnds::Words).contains(phrase)) ||
                           (condition.scope != 0 && wordsOf(story, LineEnds::Words).contains(phrase));
        ++asked;
        held += found ? 1 : 0;
    }
    return asked > 0 && fitsKeywords(static_cast<SearchMethod>(condition.method), held, asked);
}

}  // namespace

// A search in a store: a line with scope and method, one for each of two keywords, one for the title, and the
// story.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static std::unique_ptr<OneItemStore> store;
    if (!store || store->isFull())
        store = std::make_unique<OneItemStore>();
    FuzzInput input(bytes, size);
    CSearch condition;
    condition.scope = static_cast<unsigned char>(input.byte() % (lastSearchScope + 1));
    condition.method = static_cast<unsigned char>(input.byte() % (lastSearchMethod + 1));
    input.line();
    condition.keywords = {QString::fromUtf8(input.line()), QString::fromUtf8(input.line())};
    const QString title = QString::fromUtf8(input.line());
    const QString story = QString::fromUtf8(input.bytes());
    if (!store->take(title, story))
        return 0;
    const QString paragraphs = QString(*store->item.story).replace("@@@@"_L1, "\n"_L1);
    promise(store->finds(condition) == holds(store->item.title, paragraphs, condition),
            "a search finds what stands in the text and nothing else");
    return 0;
}

}  // namespace wirepane
