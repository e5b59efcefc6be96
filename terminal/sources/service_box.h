// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QString>

#include <functional>
#include <vector>

namespace wirepane {

struct NamedService {
    unsigned char service = 0;
    QString name;
};
using ServicesOf = std::function<std::vector<NamedService>()>;

// The choice of the service of a source: one of its own, or one that is there.
class ServiceBox : public QComboBox {
    Q_OBJECT

public:
    explicit ServiceBox(const std::vector<NamedService>& services, QWidget* parent = nullptr);

    unsigned char service() const { return static_cast<unsigned char>(currentData().toUInt()); }
    // One that is not there yet is shown by its number.
    void choose(unsigned char service);
};

}  // namespace wirepane
