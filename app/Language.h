#pragma once

/// The language that the program speaks.
namespace Language
{

/// Installs the texts of the user's language, ours and Qt's own (file choosers, buttons of message
/// boxes), and lets the windows run in its direction. Everything is English and left to right where
/// we have no table for the user's language: never a window in two languages. Call once, with the
/// application object there and no window yet.
void install();

} // namespace Language
