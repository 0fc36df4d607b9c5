// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

class SandboxProcess;
namespace tour { class Camera; }

// Walks through the support centre on a phone and a tablet, photographing each screen,
// and files one ticket through the form the way a user types it.
void runSupportTour(tour::Camera &camera, SandboxProcess &sandbox);
// The phone's ticket form with the on-screen keyboard up under the name being typed.
void shootFormWithKeyboard(tour::Camera &camera);
