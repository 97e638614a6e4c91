#pragma once

/// Gives `DB` the address of the web service where the user defaults or the build name one (see
/// ServerAddress.h), and the user defaults' time limit for its requests,
/// "WebService/TimeoutSeconds" from 1 to 3600. Called once at start. Interface thread only.
void openConfiguredWebService();
