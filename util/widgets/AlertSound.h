#pragma once

/// The desktop's alert sound, by the freedesktop sound theme through libcanberra. The library is
/// loaded at the first sound: starting the program pays nothing for it, and a machine without it
/// is merely silent. Interface thread only.
namespace AlertSound
{

/// Starts the sound and returns at once. Silent without a sound server, device or library.
void play();

} // namespace AlertSound
