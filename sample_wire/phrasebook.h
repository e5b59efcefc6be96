// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/slots.h"
#include "sample_wire/topic.h"

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace wirepane::sample {

class DataRow;

// A phrase taken apart: texts and slots in turn. A phrase is a text with slots in braces ("{co} rises
// {move}%"), which are filled from the facts of the event.
class Template {
public:
    Template(QStringView phrase, Mood mood);

    Mood mood() const { return requiredMood; }
    bool isStatement() const { return statement; }  // the words of somebody
    void write(Writer& writer) const;
    // The first slot whose name nothing can fill; empty when all can be filled.
    const QString& unknownSlot() const { return unknown; }

private:
    struct Piece {
        QString text;               // goes first
        SlotWriter slot = nullptr;  // null: none follows
    };
    std::vector<Piece> pieces;
    Mood requiredMood;
    bool statement = false;
    QString unknown;
};

// The texts of a topic in one language.
struct TopicTemplates {
    std::vector<Template> headlines;
    std::vector<Template> leads;       // one of them opens the story
    std::vector<Template> paragraphs;  // a choice of them follows, in this order
};

// All texts of the sample wire, ready to be filled.
class Phrasebook {
public:
    // Reads the files that the program carries. Where something is wrong with them, that is added to the
    // faults, and the book must not be used.
    static Phrasebook load(QStringList& faults);

    // Where Hong Kong words a topic its own way, that wording; without headlines where a language lacks the
    // topic.
    const TopicTemplates& topic(Topic topic, Language language, bool hongKong) const;
    // Paragraphs about a company that fit any story about it.
    const std::vector<Template>& background(Language language) const;

private:
    using Topics = std::array<TopicTemplates, topicCount + 1>;  // the last one: the background

    static void read(Topics& topics, const QString& file, QStringList& faults);
    static void add(Topics& topics, const DataRow& row);

    Topics english;
    Topics chinese;
    Topics chineseHongKong;
};

}  // namespace wirepane::sample
