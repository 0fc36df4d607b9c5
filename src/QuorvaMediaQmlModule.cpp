// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// Compiled into every target that links QuorvaMedia::QuorvaMedia. A host whose own code
// names nothing of the library (a QML-only app) still loads it, and with it the QML module
// that "import QuorvaMedia" finds without an import path: this reference keeps the
// linker's --as-needed from dropping the library.
void qml_register_types_QuorvaMedia();
[[gnu::used]] static void (*const quorvaMediaQmlModule)() = &qml_register_types_QuorvaMedia;
