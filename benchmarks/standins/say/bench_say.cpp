// Compares saved speech with espeak-ng writing the same speech directly.
#include "StandinRatio.h"

int main()
{
    std::string text;
    for (int count = 0; count < 100; ++count)
        text += "The quick brown fox jumps over the lazy dog, and " + std::to_string(count)
            + " others look on. ";
    const Command ours{TOOLVANE_SAY, text, "--voice=English (America)", "--rate=175",
                       "--output-file=" + workFolder() + "/result.aiff"};
    const Command bare{"/usr/bin/espeak-ng",         "-v", "en-us", "-s", "175", "-w",
                       workFolder() + "/result.wav", text};
    bool good = isWithin("saved speech, 9 minutes", 1.2, 25, ours, bare);
    good &= isSmall("say", ours);
    return good ? 0 : 1;
}
