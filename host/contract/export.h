// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Everything is hidden in the library that defines it, unless it is marked with one of these: what the
// contract library and the host library offer. Mark functions, and classes that have a function outside of
// their braces. A class that is implemented on one side of the module's border and asked for by dynamic_cast
// on the other has a destructor outside of its braces, so that its type information stands in one library
// alone.
#ifdef wirepane_contract_EXPORTS
#define WIREPANE_CONTRACT_EXPORT Q_DECL_EXPORT
#else
#define WIREPANE_CONTRACT_EXPORT Q_DECL_IMPORT
#endif
#ifdef wirepane_host_EXPORTS
#define WIREPANE_HOST_EXPORT Q_DECL_EXPORT
#else
#define WIREPANE_HOST_EXPORT Q_DECL_IMPORT
#endif
