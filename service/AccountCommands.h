#pragma once

#include "ServiceOptions.h"

/// Runs "account add", "account list" or "account remove"; returns the program's exit status.
int runAccountCommand(const ServiceOptions &options);

/// Makes one writer with a random password if there is no account. Returns "name:password@" if it
/// did, an empty text if there was an account, and none if the accounts cannot be read or written.
std::optional<std::string> makeFirstAccount(const std::string &accountsFile);

/// Makes the folder of a file, for the owner alone, if it is missing.
bool makeFolderOf(const std::string &path);
