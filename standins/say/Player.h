#pragma once

#include "Child.h"

namespace standin
{

// The program that plays raw 16-bit mono samples from the descriptor: through the sound server when
// one answers, else straight to the sound card. Both end at once with a status when there is no
// device.
Command playerCommand(int samples, int samplesPerSecond);

} // namespace standin
