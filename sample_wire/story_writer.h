// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/news_desk.h"
#include "sample_wire/phrasebook.h"

#include <QString>

#include <vector>

namespace wirepane::sample {

// Bounds of a story's length; see SampleOptions.
struct LengthBounds {
    qsizetype least = 0;
    qsizetype most = 0;
};

// Words the headline and the story of an assignment.
class StoryWriter {
public:
    StoryWriter(const World& theWorld, const Phrasebook& theBook) : world(theWorld), book(theBook) {}

    QString headline(Scene& scene, const Assignment& assignment) const;

    // The story as a desk writes it, in wire form; long ones are round-ups of many companies.
    QString story(Scene& scene, const Assignment& assignment) const;
    // The same, with more items added or left out so that it keeps to the bounds.
    QString story(Scene& scene, const Assignment& assignment, LengthBounds bounds) const;

    // An item that is sent without a story.
    static bool isFlash(const Scene& scene, const Assignment& assignment);

private:
    // Statements that a story has quoted: a second speaker must not say the same.
    using Quoted = std::vector<const Template*>;

    std::vector<QString> body(Scene& scene, const Assignment& assignment, Quoted& quoted) const;
    QString opening(Scene& scene, const Assignment& assignment) const;
    QString brief(Scene& scene, int number, Quoted& quoted) const;
    static void addChoice(std::vector<QString>& paragraphs, Scene& scene, const std::vector<Template>& from,
                          int permille, Quoted& quoted);
    static QString signature(Scene& scene);

    const World& world;
    const Phrasebook& book;
};

}  // namespace wirepane::sample
