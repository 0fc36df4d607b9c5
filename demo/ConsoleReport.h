// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

class SandboxProcess;

// Prints what the client receives from the sandbox: the profile, the first two pages of
// offers, the categories, a user's history and a filed ticket's id.
int printConsoleReport(SandboxProcess &sandbox);
