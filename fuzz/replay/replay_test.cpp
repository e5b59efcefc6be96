// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/replay/changes.h"
#include "fuzz/replay/kept_input.h"
#include "tests/backend/import/format_samples.h"

#include <QDir>
#include <QFile>

#include <cstddef>
#include <gtest/gtest.h>

#define FUZZ_TARGET(name) extern "C" int fuzz_##name(const std::uint8_t* bytes, std::size_t size);
#include "fuzz_targets.inc"
#undef FUZZ_TARGET

namespace wirepane {

namespace {

using Target = int(const std::uint8_t*, std::size_t);

constexpr int changesPerTarget = 4000;

std::vector<QByteArray> seedsOf(const QDir& folder) {
    std::vector<QByteArray> seeds;
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        seeds.push_back(file.readAll());
    }
    return seeds;
}

void replay(Target* target, const char* name, const std::vector<QByteArray>& seeds) {
    ASSERT_FALSE(seeds.empty());
    KeptInput input(name);
    const auto run = [&](const QByteArray& bytes) {
        input.set(bytes);
        target(reinterpret_cast<const std::uint8_t*>(bytes.constData()), std::size_t(bytes.size()));
    };
    run({});
    for (const QByteArray& seed : seeds)
        run(seed);
    SeedChanges changes(seeds);
    for (int i = 0; i < changesPerTarget; ++i)
        run(changes.next());
}

// A target ends the program when a reader breaks a promise or the sanitizers find a fault; KeptInput then
// leaves the bytes that did it.
#define FUZZ_TARGET(name)                                                                   \
    TEST(FuzzReplay, name) {                                                                \
        replay(fuzz_##name, #name, seedsOf(QStringLiteral(WIREPANE_FUZZ_SEEDS "/" #name))); \
    }
#include "fuzz_targets.inc"

// Every format is among these, a new one as well.
TEST(FuzzReplay, samples_of_formats) {
    std::vector<QByteArray> seeds;
    for (const wirepane::FormatSample& sample : wirepane::formatSamples())
        seeds.push_back('\xff' + sample.source);
    replay(fuzz_source, "source", seeds);
}

}  // namespace

}  // namespace wirepane
