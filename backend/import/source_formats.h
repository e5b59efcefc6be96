// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/import/source_head.h"

#include <QIODevice>
#include <QStringList>
#include <QStringView>

#include <span>

namespace wirepane {

// A format that sources may be in. Help, file dialogs and the manual page name what stands in the table.
struct SourceFormat {
    QStringView name;      // as it is known everywhere, in every language
    QStringView forms;     // what of it is read, in English; may be empty
    QStringView patterns;  // the usual names of its files: "*.a *.b"
    // Whether a source that starts like this is of the format. Two formats never recognise the same source.
    bool (*recognise)(const SourceHead& head);
    // Hands over what is in a source that was recognised. The source is random-access, open for reading, and
    // stands at its start. Fails, with nothing handed over, when it cannot be read at all.
    Done (*read)(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit);
};

// All of them, in the order in which users are told of them.
std::span<const SourceFormat> sourceFormats();

// "ninjs, RSS, Atom"
QString namesOfFormats();

// The one of these formats that a source is in. The error says what it looks like instead.
Result<const SourceFormat*> recognisedFormat(const SourceHead& head);

}  // namespace wirepane
