// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/byte_lines.h"

#include "fuzz/support/fuzz_input.h"
#include "output/code_page_950.h"

namespace wirepane {

namespace {

// Whether a cut at this place splits no character.
bool isBetweenCharacters(QStringView text, qsizetype at) {
    return at == 0 || at == text.size() || !text[at - 1].isHighSurrogate() || !text[at].isLowSurrogate();
}

void promiseCuts(QStringView text, int bytes) {
    const QStringView first = firstBytes(text, bytes);
    const auto cut = first.size();
    promise(text.startsWith(first) && byteLength(first) <= bytes,
            "a cut text has no more bytes than asked for");
    promise(isBetweenCharacters(text, cut), "a cut splits no character");
    const bool hasRoom = byteLength(text.sliced(cut)) > 0 && bytes - byteLength(first) >= 2;
    promise(cut == text.size() || !hasRoom, "a cut leaves no room for another character");
}

void promiseLines(QStringView text) {
    QStringView rest = text;
    qsizetype taken = 0;
    while (!rest.isEmpty()) {
        const QStringView line = takeLine(rest);
        promise(!line.isEmpty() && byteLength(line) <= bytesPerLine, "a line has 1 to 80 bytes");
        promise(line == text.sliced(taken, line.size()), "lines are the text");
        promise(isBetweenCharacters(text, taken), "a line splits no character");
        const qsizetype feed = line.indexOf(u'\n');
        promise(feed < 0 || feed == line.size() - 1, "a line feed ends its line");
        taken += line.size();
    }
    promise(taken == text.size(), "lines hold all of the text");
}

void promiseTitle(QStringView title, bool whole) {
    qsizetype taken = 0;
    for (const QStringView line : titleLines(title, whole)) {
        promise(byteLength(line) <= bytesPerLine && line == title.sliced(taken, line.size()),
                "the lines of a title are its text");
        taken += line.size();
    }
    promise((!whole && byteLength(title) > bytesPerLine) || taken == title.size(),
            "a short title is whole, and a long one where it is to be");
    promise(byteLength(title.sliced(taken)) <= bytesPerLine, "a long title loses 80 bytes at most");
}

void promisePage(QStringView text) {
    const auto page = encodeCodePage950(text);
    promise(page.has_value(), "this system has the code page");
    promise(page->bytes.size() == byteLength(text), "bytes are counted as they are written");
    promise(page->replaced >= 0 && 2 * page->replaced <= page->bytes.size(), "what is replaced is counted");
    const QStringView first = firstBytes(text, bytesPerLine);
    promise(page->bytes.startsWith(encodeCodePage950(first)->bytes), "a cut text is the start of the bytes");
}

}  // namespace

// Text counted in bytes of code page 950; the first byte chooses where it is cut.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const int cut = input.byte();
    const QString text = input.text();
    promiseCuts(text, cut);
    promiseLines(text);
    promiseTitle(text, false);
    promiseTitle(text, true);
    promisePage(text);
    return 0;
}

}  // namespace wirepane
