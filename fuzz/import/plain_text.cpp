// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/plain_text.h"

#include "backend/import/wire_form.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <QRegularExpression>

namespace wirepane {

namespace {

// What a table's lines are indented by hangs on what all of them had, tabs included.
QString withoutIndents(QString story) {
    static const QRegularExpression indent(QStringLiteral("(^|@@@@)\\s+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    return story.replace(indent, QStringLiteral("\\1"));
}

}  // namespace

// Markup and plain text on their way to a title and a story.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QString text = FuzzInput(bytes, size).text();
    for (const QString& plain : {text, plainText(text), textOfUnknownForm(text)}) {
        const QString story = wireForm(plain);
        promiseWireForm(story);
        const QString again =
            wireForm(QString(story).replace(QLatin1StringView("@@@@"), QLatin1StringView("\n\n")));
        promise(withoutIndents(again) == withoutIndents(story), "paragraphs are made once and stay");
        const QString title = titleLine(plain);
        promiseCleanText(title);
        promise(title.size() <= 500 && titleLine(title) == title, "a title is made once and stays");
        promise(cleanLine(plain).simplified() == cleanLine(plain), "a clean line has its white space folded");
        const QString made = titleFromStory(story);
        promiseCleanText(made);
        promise(made.size() <= 80 && made.isEmpty() == story.isEmpty(), "a story has a title");
    }
    return 0;
}

}  // namespace wirepane
