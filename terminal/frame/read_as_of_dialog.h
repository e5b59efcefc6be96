// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <cstdint>

class QDateTimeEdit;

namespace wirepane {

// Asks for the moment that the terminal shall take as the present one.
class ReadAsOfDialog : public QDialog {
    Q_OBJECT

public:
    explicit ReadAsOfDialog(QWidget* parent = nullptr);

    // Seconds since 1970 (UTC).
    std::int64_t moment() const;

private:
    QDateTimeEdit* edit;
};

}  // namespace wirepane
