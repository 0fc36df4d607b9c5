// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <functional>

class SandboxProcess;

// Credits a user of a wall of publisher 1042 in the sandbox, as completing an offer would. done gets
// whether the sandbox stored the credit.
void creditUser(const SandboxProcess &sandbox, const QString &wallId, const QString &user, const QString &offerName, int amount,
                std::function<void(bool stored)> done);
