// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <random>
#include <vector>

namespace wirepane {

// Makes changed copies of seeds, the same ones in every run.
class SeedChanges {
public:
    explicit SeedChanges(const std::vector<QByteArray>& originals) : seeds(originals) {}

    // One of the seeds with one to eight changes.
    QByteArray next();

private:
    qsizetype below(qsizetype bound) { return qsizetype(random() % std::uint32_t(bound)); }
    void change(QByteArray& bytes);
    // What is put in: a byte or a text that means something to some reader, or a piece of a seed.
    QByteArray piece();

    const std::vector<QByteArray>& seeds;
    std::mt19937 random;
};

}  // namespace wirepane
