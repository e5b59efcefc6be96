// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/content_coding.h"

#include <algorithm>
#include <array>
#include <zlib.h>

namespace wirepane {

namespace {

constexpr int largestWindow = 15;
constexpr int eitherHead = 32;  // that of gzip or of zlib

class Inflating {
public:
    explicit Inflating(int window) { isReady = inflateInit2(&stream, window) == Z_OK; }
    ~Inflating() { inflateEnd(&stream); }
    Inflating(const Inflating&) = delete;
    Inflating& operator=(const Inflating&) = delete;

    Decoding decode(QByteArrayView in, QByteArray& out, qint64 most) {
        std::array<char, 65536> part;
        // Its interface takes no constants, but changes nothing.
        stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(in.data()));
        stream.avail_in = static_cast<uInt>(in.size());
        int status = isReady ? Z_OK : Z_MEM_ERROR;
        while (status == Z_OK) {
            stream.next_out = reinterpret_cast<Bytef*>(part.data());
            stream.avail_out = part.size();
            status = inflate(&stream, Z_NO_FLUSH);
            out.append(part.data(), static_cast<qsizetype>(part.size() - stream.avail_out));
            if (out.size() > most)
                return Decoding::TooLarge;
            // Several streams may stand one behind the other.
            if (status == Z_STREAM_END && stream.avail_in > 0)
                status = inflateReset(&stream);
        }
        return status == Z_STREAM_END ? Decoding::Whole : Decoding::CutOff;
    }

private:
    z_stream stream{};
    bool isReady;
};

}  // namespace

Decoding decodeBody(QByteArrayView coding, QByteArray& body, qint64 most) {
    const QByteArray name = coding.trimmed().toByteArray().toLower();
    if (name.isEmpty() || name == "identity" || body.isEmpty())
        return Decoding::Whole;
    const bool isDeflate = name == "deflate";
    if (!isDeflate && name != "gzip" && name != "x-gzip")
        return Decoding::Unknown;
    QByteArray decoded;
    Decoding result = Inflating(largestWindow + eitherHead).decode(body, decoded, most);
    // Some servers leave the head of "deflate" out.
    if (isDeflate && result == Decoding::CutOff && decoded.isEmpty())
        result = Inflating(-largestWindow).decode(body, decoded, most);
    body = result == Decoding::Whole ? decoded : QByteArray();
    return result;
}

}  // namespace wirepane
