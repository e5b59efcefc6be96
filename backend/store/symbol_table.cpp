// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/symbol_table.h"

#include "backend/database/database.h"
#include "backend/database/statement.h"
#include "backend/words/character_folding.h"
#include "host/contract/query/query_symbol.h"

#include <algorithm>
#include <array>
#include <optional>

namespace wirepane {

namespace {

// As the news search folds it: full width, case, Traditional and Simplified Chinese.
QString folded(const QString& text) {
    const CharacterFolding& folding = CharacterFolding::instance();
    QString result;
    for (char32_t character : text.normalized(QString::NormalizationForm_KC).toUcs4())
        result += QChar::fromUcs4(folding.folded(character));
    return result;
}

// How a symbol fits what is typed, the best first.
enum Fit { ExactCode, OtherForm, ExactName, CodeBegins, NameBegins, NameHolds, NoFit };

// What is typed, folded, with the forms in which it may be written where it is a code.
struct Typed {
    explicit Typed(const QString& text) : wanted(folded(text)) {
        const auto symbol = readQuerySymbol(wanted);
        if (!symbol)
            return;
        market = symbol->market;
        for (const QString& code : symbol->codes)
            forms += folded(code);
    }

    QString wanted;
    std::optional<unsigned char> market;  // that it names; none: any
    QStringList forms;
};

Fit fitOfName(QStringView name, QStringView wanted) {
    if (!name.startsWith(wanted))
        return name.contains(wanted) ? NameHolds : NoFit;
    return name.size() == wanted.size() ? ExactName : NameBegins;
}

}  // namespace

Done SymbolTable::load(Database& database) {
    Statement all(database, "SELECT market, code, name, category, english_name FROM symbols");
    std::map<unsigned char, std::map<QString, Entry>> read;
    std::swap(read, byMarket);
    Query rows(all);
    while (rows.next())
        put({static_cast<unsigned char>(rows.number(0)), rows.text(1), rows.text(2), rows.smallNumber(3),
             rows.text(4)});
    if (!rows.failed())
        return Nothing{};
    std::swap(read, byMarket);
    return database.failure();
}

void SymbolTable::put(const SymbolItem& symbol) {
    byMarket[symbol.market][symbol.code] = {symbol, folded(symbol.code), folded(symbol.name),
                                            folded(symbol.englishName)};
}

std::vector<unsigned char> SymbolTable::markets() const {
    std::vector<unsigned char> result;
    for (const auto& [market, symbols] : byMarket)
        result.push_back(market);
    return result;
}

const SymbolItem* SymbolTable::find(unsigned char market, const QString& code) const {
    const auto symbols = byMarket.find(market);
    if (symbols == byMarket.end())
        return nullptr;
    const auto entry = symbols->second.find(code);
    return entry == symbols->second.end() ? nullptr : &entry->second.symbol;
}

QString SymbolTable::nameOf(const SymbolItem& symbol) const {
    if (prefersEnglish && !symbol.englishName.isEmpty())
        return symbol.englishName;
    if (!convert)
        return symbol.name;
    QString& name = converted[symbol.name];
    if (name.isEmpty())
        name = convert(symbol.name);
    return name;
}

void SymbolTable::convertNames(std::function<QString(const QString&)> conversion) {
    convert = std::move(conversion);
    converted.clear();
}

std::vector<CSymbolUpdateInfo> SymbolTable::all() const {
    std::vector<CSymbolUpdateInfo> result;
    for (const auto& [market, symbols] : byMarket) {
        for (const auto& [code, entry] : symbols)
            result.push_back({market, code});
    }
    return result;
}

std::vector<CSymbolUpdateInfo> SymbolTable::withTwoNames() const {
    std::vector<CSymbolUpdateInfo> result;
    for (const auto& [market, symbols] : byMarket) {
        for (const auto& [code, entry] : symbols) {
            if (!entry.symbol.englishName.isEmpty())
                result.push_back({market, code});
        }
    }
    return result;
}

std::vector<SymbolItem> SymbolTable::search(const QString& text, std::size_t limit) const {
    const Typed typed(text.trimmed());
    std::array<std::vector<SymbolItem>, NoFit> found;
    if (typed.wanted.isEmpty())
        return {};
    const auto fitOf = [&typed](unsigned char market, const Entry& entry) {
        if (entry.foldedCode == typed.wanted)
            return ExactCode;
        if ((!typed.market || typed.market == market) && typed.forms.contains(entry.foldedCode))
            return OtherForm;
        const Fit byName = std::min(fitOfName(entry.foldedName, typed.wanted),
                                    fitOfName(entry.foldedEnglishName, typed.wanted));
        return entry.foldedCode.startsWith(typed.wanted) ? std::min(CodeBegins, byName) : byName;
    };
    for (const auto& [market, symbols] : byMarket) {
        for (const auto& [code, entry] : symbols) {
            const Fit fit = fitOf(market, entry);
            if (fit != NoFit)
                found.at(fit).push_back(entry.symbol);
        }
    }
    std::vector<SymbolItem> result;
    for (const auto& group : found)
        result.insert(result.end(), group.begin(), group.end());
    result.resize(std::min(result.size(), limit));
    return result;
}

bool SymbolTable::FindSearchList(const QString& typed, std::vector<QString>& candidates) {
    constexpr std::size_t mostCandidates = 200;
    candidates.clear();
    for (const SymbolItem& symbol : search(typed, mostCandidates)) {
        const QString text = symbol.code + QLatin1Char(' ') + nameOf(symbol);
        const auto marketsWithCode = std::count_if(byMarket.begin(), byMarket.end(), [&](const auto& market) {
            return market.second.count(symbol.code) != 0;
        });
        // Readers skip up to the first bracket: a text with one of its own must not begin there.
        const bool named = marketsWithCode > 1 || text.contains(QLatin1Char(']'));
        candidates.push_back(named ? QStringLiteral("[%1]").arg(symbol.market) + text : text);
    }
    return !candidates.empty();
}

bool SymbolTable::GetSymbolsByService(unsigned char service, std::vector<QString>& codes,
                                      std::vector<QString>& names, int) {
    codes.clear();
    names.clear();
    const auto symbols = byMarket.find(service);
    if (symbols == byMarket.end())
        return false;
    for (const auto& [code, entry] : symbols->second) {
        codes.push_back(code);
        names.push_back(nameOf(entry.symbol));
    }
    return true;
}

}  // namespace wirepane
