// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/packed_text.h"

#include <memory>
#include <zstd.h>

namespace wirepane {

namespace {

constexpr qsizetype leastPacked = 256;                    // bytes; below that little is to be had
constexpr unsigned long long mostUnpacked = 16ULL << 20;  // bytes; a story of the most characters has 12 Mi
constexpr int level = 1;

struct Free {
    void operator()(ZSTD_CCtx* context) const { ZSTD_freeCCtx(context); }
    void operator()(ZSTD_DCtx* context) const { ZSTD_freeDCtx(context); }
};

// What they work with is kept, since making it takes longer than packing a short text.
ZSTD_CCtx* packer() {
    thread_local const std::unique_ptr<ZSTD_CCtx, Free> context = [] {
        std::unique_ptr<ZSTD_CCtx, Free> made(ZSTD_createCCtx());
        ZSTD_CCtx_setParameter(made.get(), ZSTD_c_compressionLevel, level);
        ZSTD_CCtx_setParameter(made.get(), ZSTD_c_checksumFlag, 1);
        return made;
    }();
    return context.get();
}

ZSTD_DCtx* unpacker() {
    thread_local const std::unique_ptr<ZSTD_DCtx, Free> context(ZSTD_createDCtx());
    return context.get();
}

}  // namespace

QByteArray packedText(QByteArrayView utf8) {
    if (utf8.size() < leastPacked || static_cast<unsigned long long>(utf8.size()) > mostUnpacked)
        return {};
    const qsizetype room = utf8.size() - utf8.size() / 8;
    QByteArray packed(room, Qt::Uninitialized);
    // What does not fit does not pay.
    const std::size_t size =
        ZSTD_compress2(packer(), packed.data(), std::size_t(room), utf8.data(), std::size_t(utf8.size()));
    if (ZSTD_isError(size) != 0)
        return {};
    packed.truncate(qsizetype(size));
    return packed;
}

std::optional<std::size_t> sizeOfUnpacked(QByteArrayView packed) {
    const unsigned long long size =
        ZSTD_getFrameContentSize(packed.data(), static_cast<std::size_t>(packed.size()));
    // What stands for an unknown size is larger than any.
    return size <= mostUnpacked ? std::optional(static_cast<std::size_t>(size)) : std::nullopt;
}

bool unpackText(QByteArrayView packed, char* text, std::size_t size) {
    return ZSTD_decompressDCtx(unpacker(), text, size, packed.data(),
                               static_cast<std::size_t>(packed.size())) == size;
}

}  // namespace wirepane
