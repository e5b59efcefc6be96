// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/sample/slots.h"
#include "backend/sample/topic.h"

#include <QString>

#include <array>
#include <vector>

namespace wirepane::sample {

// A phrase taken apart: texts and slots in turn.
class Template {
public:
    explicit Template(const Phrase& phrase);

    Mood mood() const { return requiredMood; }
    bool isStatement() const { return statement; }  // the words of somebody
    void write(Writer& writer) const;
    // The first slot whose name nothing can fill; empty when all can be filled.
    QStringView unknownSlot() const { return unknown; }

private:
    struct Piece {
        QStringView text;           // goes first
        SlotWriter slot = nullptr;  // null: none follows
    };
    std::vector<Piece> pieces;
    Mood requiredMood = Mood::Any;
    bool statement = false;
    QStringView unknown;
};

struct TopicTemplates {
    std::vector<Template> headlines;
    std::vector<Template> leads;
    std::vector<Template> paragraphs;
};

// All texts of the sample wire, ready to be filled.
class Phrasebook {
public:
    Phrasebook();

    // Where Hong Kong words a topic its own way, that wording; without headlines where a language lacks the
    // topic.
    const TopicTemplates& topic(Topic topic, Language language, bool hongKong) const;
    const std::vector<Template>& background(Language language) const;

    // The phrases that hold a slot that nothing can fill; there should be none.
    std::vector<QString> faults() const;

private:
    using Topics = std::array<TopicTemplates, topicCount>;
    static void add(Topics& topics, std::span<const TopicText> texts);

    Topics english;
    Topics chinese;
    Topics chineseHongKong;
    std::vector<Template> englishBackground;
    std::vector<Template> chineseBackground;
};

}  // namespace wirepane::sample
