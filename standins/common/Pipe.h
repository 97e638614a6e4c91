#pragma once

#include "FileDescriptor.h"

namespace standin
{

// Both ends of a new pipe, closed on exec. Fails when the system gives no more descriptors.
struct Pipe {
    Pipe();

    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

} // namespace standin
