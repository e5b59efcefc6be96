// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/support/fuzz_input.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace wirepane {

void promise(bool kept, const char* sentence) {
    if (kept)
        return;
    std::fprintf(stderr, "A promise was broken: %s\n", sentence);
    std::abort();
}

unsigned char FuzzInput::byte() {
    if (rest.isEmpty())
        return 0;
    const auto first = static_cast<unsigned char>(rest.front());
    rest = rest.sliced(1);
    return first;
}

QString FuzzInput::text() {
    if (byte() != 'w')
        return QString::fromUtf8(rest);
    QString units(rest.size() / 2, Qt::Uninitialized);
    std::memcpy(units.data(), rest.constData(), std::size_t(units.size()) * sizeof(QChar));
    return units;
}

QByteArray FuzzInput::line() {
    const qsizetype feed = rest.indexOf('\n');
    const QByteArray found = feed < 0 ? rest : rest.first(feed);
    rest = rest.sliced(std::min(found.size() + 1, rest.size()));
    return QByteArray(found.constData(), found.size());
}

}  // namespace wirepane
