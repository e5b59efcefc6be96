// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/service_box.h"

#include "backend/network/network_source.h"
#include "terminal/translations/terminal_text.h"

namespace wirepane {

ServiceBox::ServiceBox(const std::vector<NamedService>& services, QWidget* parent) : QComboBox(parent) {
    addItem(terminalText(TextId::SourceOwnService), ownService);
    for (const NamedService& each : services)
        addItem(each.name, each.service);
}

void ServiceBox::choose(unsigned char service) {
    if (findData(service) < 0)
        addItem(QString::number(service), service);
    setCurrentIndex(findData(service));
}

}  // namespace wirepane
