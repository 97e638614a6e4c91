#pragma once

#include "FileDescriptor.h"
#include "FolderRemoval.h"

/// Goes once through everything below an open folder and removes it. Never follows a link, never
/// enters what is mounted below, and goes on after what cannot be removed. With helpers, other
/// threads take part; folders around what one of them holds may then stay, empty, for a second
/// call. The folder must not have been read before through this descriptor. After a stop request it
/// leaves what it has not removed yet. Any thread.
FolderRemovalResult emptyFolder(FileDescriptor folder, unsigned helpers,
                                const std::stop_token &stop, FreedBytes freed);
