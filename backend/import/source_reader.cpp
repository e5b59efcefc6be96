// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/source_reader.h"

#include "backend/import/mapped_table.h"
#include "backend/import/source_formats.h"

namespace wirepane {

Done readSource(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    if (options.mapping)
        return readMappedTable(source, *options.mapping, options, visit);
    const Result<const SourceFormat*> format = recognisedFormat(SourceHead(source.peek(recognisedFrom)));
    return format ? format.value()->read(source, options, visit) : format.error();
}

}  // namespace wirepane
