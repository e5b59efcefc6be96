// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/story_writer.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

constexpr QStringView paragraphMark = u"@@@@";
constexpr int flashPermille = 110;
constexpr int paragraphPermille = 780;
constexpr int backgroundPermille = 330;
constexpr int longRoundUpPermille = 600;

// What the briefs of a round-up are about.
constexpr Topic briefTopics[] = {
    Topic::Earnings, Topic::Orders, Topic::Capex, Topic::Product,        Topic::Dividend, Topic::Analyst,
    Topic::Deal,     Topic::Board,  Topic::Legal, Topic::MonthlyRevenue, Topic::Incident,
};

bool isRoundUp(const Scene& scene) {
    return scene.topic() == Topic::Digest;
}

LengthBounds usualBounds(const Scene& scene) {
    if (!isRoundUp(scene))
        return {0, 4'000};
    const bool isLong = scene.draw(fact("long"), 0, 999) < longRoundUpPermille;
    const int least =
        isLong ? scene.draw(fact("length"), 5'000, 18'000) : scene.draw(fact("length"), 1'200, 4'000);
    return {least, least + 2'000};
}

// The first template from an index on, in a circle, whose mood fits; every list has one for each mood.
std::size_t fitting(const std::vector<Template>& templates, const Scene& scene, std::size_t index) {
    index %= templates.size();
    while (!scene.fits(templates[index].mood()))
        index = (index + 1) % templates.size();
    return index;
}

// Text in paragraphs, kept below a length.
class WireText {
public:
    explicit WireText(qsizetype mostLength) : most(mostLength) {}

    bool add(const QString& paragraph) {
        const qsizetype mark = text.isEmpty() ? 0 : paragraphMark.size();
        if (!text.isEmpty() && text.size() + mark + paragraph.size() > most)
            return false;
        if (mark > 0)
            text += paragraphMark;
        text += paragraph;
        return true;
    }

    QString text;

private:
    qsizetype most;
};

}  // namespace

QString StoryWriter::headline(Scene& scene, const Assignment& assignment) const {
    QString text;
    text.reserve(96);
    const std::vector<Template>& headlines =
        book.topic(scene.topic(), scene.language(), scene.hongKong()).headlines;
    std::size_t index = fitting(headlines, scene, static_cast<std::size_t>(assignment.variant));
    if (assignment.version > 0) {
        text += scene.english() ? QStringView(u"CORRECTED: ") : QStringView(u"（更正）");
        index = fitting(headlines, scene, index + 1);
    }
    Writer writer(scene, text);
    headlines[index].write(writer);
    return text;
}

bool StoryWriter::isFlash(const Scene& scene, const Assignment& assignment) {
    return assignment.version == 0 && !isRoundUp(scene) && !isNotice(scene.topic()) &&
           scene.draw(fact("flash"), 0, 999) < flashPermille;
}

QString StoryWriter::opening(Scene& scene, const Assignment& assignment) const {
    QString text;
    Writer writer(scene, text);
    if (!isNotice(scene.topic())) {
        if (scene.english()) {
            text += scene.hongKong() ? QStringView(u"HONG KONG, ") : QStringView(u"TAIPEI, ");
            writer.date(scene.at().day);
            text += u" - ";
        } else {
            text += scene.hongKong() ? QStringView(u"（香港") : QStringView(u"（台北");
            writer.integer(scene.at().day.dayOfMonth());
            text += u"日訊）";
        }
    }
    const auto& leads = book.topic(scene.topic(), scene.language(), scene.hongKong()).leads;
    leads[fitting(leads, scene, static_cast<std::size_t>(assignment.variant))].write(writer);
    return text;
}

void StoryWriter::addChoice(std::vector<QString>& paragraphs, Scene& scene, const std::vector<Template>& from,
                            int permille, Quoted& quoted) {
    for (std::size_t i = 0; i < from.size(); ++i) {
        const int draw = inRange(hashOf(scene.settings().seed, fact("paragraph"), permille, i), 0, 999);
        if (!scene.fits(from[i].mood()) || draw >= permille)
            continue;
        if (from[i].isStatement()) {
            if (std::find(quoted.begin(), quoted.end(), &from[i]) != quoted.end())
                continue;
            quoted.push_back(&from[i]);
        }
        QString text;
        Writer writer(scene, text);
        from[i].write(writer);
        paragraphs.push_back(std::move(text));
    }
}

QString StoryWriter::signature(Scene& scene) {
    QString text = scene.english() ? QStringLiteral("(Reporting by ") : QStringLiteral("（記者");
    Writer writer(scene, text);
    writer.person(hashOf(scene.settings().seed, fact("reporter")));
    writer.choose(u"; editing by ", u"／編輯");
    writer.person(hashOf(scene.settings().seed, fact("editor")));
    writer.choose(u")", u"）");
    return text;
}

std::vector<QString> StoryWriter::body(Scene& scene, const Assignment& assignment, Quoted& quoted) const {
    const TopicTemplates& texts = book.topic(scene.topic(), scene.language(), scene.hongKong());
    std::vector<QString> paragraphs;
    if (assignment.version > 0) {
        QString note = scene.english()
                           ? QStringLiteral("(Repeats an earlier item with a corrected headline.)")
                           : QStringLiteral("（重發稿件，更正標題。）");
        paragraphs.push_back(std::move(note));
    }
    paragraphs.push_back(opening(scene, assignment));
    const bool form = isNotice(scene.topic()) || isRoundUp(scene);
    addChoice(paragraphs, scene, texts.paragraphs, form ? 1000 : paragraphPermille, quoted);
    if (isAboutCompany(scene.topic()) && !isAboutWarrant(scene.topic()) && !form)
        addChoice(paragraphs, scene, book.background(scene.language()), backgroundPermille, quoted);
    return paragraphs;
}

QString StoryWriter::brief(Scene& scene, int number, Quoted& quoted) const {
    SceneSetting setting = scene.settings();
    setting.seed = hashOf(setting.seed, fact("brief"), static_cast<std::uint64_t>(number));
    setting.topic =
        briefTopics[inRange(hashOf(setting.seed), 0, static_cast<int>(std::size(briefTopics)) - 1)];
    Scene own(world, setting);
    const TopicTemplates& texts = book.topic(setting.topic, setting.language, scene.hongKong());

    QString text = scene.english() ? QString() : QStringLiteral("◆");
    Writer writer(own, text);
    texts.leads[fitting(texts.leads, own, static_cast<std::size_t>(number))].write(writer);
    std::vector<QString> more;
    addChoice(more, own, texts.paragraphs, paragraphPermille / 2, quoted);
    for (const QString& paragraph : more) {
        text += paragraphMark;
        text += paragraph;
    }
    scene.mention(own.company());
    return text;
}

QString StoryWriter::story(Scene& scene, const Assignment& assignment) const {
    return story(scene, assignment, usualBounds(scene));
}

QString StoryWriter::story(Scene& scene, const Assignment& assignment, LengthBounds bounds) const {
    WireText wire(bounds.most);
    Quoted quoted;
    for (const QString& paragraph : body(scene, assignment, quoted))
        if (!wire.add(paragraph))
            break;
    for (int number = 0; wire.text.size() < bounds.least; ++number)
        if (!wire.add(brief(scene, number, quoted)))
            break;
    if (!isNotice(scene.topic()) && scene.draw(fact("signed"), 0, 1) == 0)
        wire.add(signature(scene));
    return std::move(wire.text);
}

}  // namespace wirepane::sample
