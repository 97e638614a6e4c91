#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <optional>

class QWidget;

/// Stateless helpers that every part of the program calls by name.
///
/// The text half (dates, sizes, SQL pieces, the log line, folders, bookmarks) lives in the library
/// `toolvane_util`, is free of widgets and may be called on any thread. The window half (message
/// box, windows, sound) lives in `toolvane_util_widgets` and belongs to the interface thread; code
/// that does not link that library cannot use it.
class MiscTool
{
public:
    MiscTool() = delete;

    // Date and time: this moment in the local time zone. Year, month, day and weekday are those of
    // the user's own calendar (which may be Buddhist, Persian, …), hour, minute and second are
    // always Gregorian; this asymmetry is deliberate. Texts are not padded with zeros.

    static std::int64_t getYear();
    static std::int64_t getMonth(); ///< 1 to 12 (13 in calendars that have a thirteenth month).
    static std::int64_t getDay();
    static std::int64_t getDate(); ///< The weekday, in spite of the name: 1 is Sunday, 7 Saturday.
    static QString getToday(); ///< For 7 March 2024: "2024-3-7".
    static std::int64_t getHour(); ///< 0 to 23.
    static std::int64_t getMinute();
    static std::int64_t getSecond();
    static QString getTime(); ///< For 09:05:03: "9:5:3".
    static QString getNow(); ///< getToday(), a blank, getTime().
    static QString getDefaultStartDate(); ///< "1970-01-01", padded unlike getToday().
    static QString getDefaultStartTime(); ///< "1970-01-01 00:00:00".

    // Folders and sizes, in bytes.

    /// The home folder of the real user in the user database, without a trailing slash; the
    /// environment does not matter. Empty if the database does not have the user.
    static QString getUserHome();
    static QString getDownloadFolder(); ///< getUserHome() with "Downloads" below.
    /// Size of the file system that holds "/"; none if it cannot be read. Some virtual file systems
    /// report 0: check before dividing by it.
    static std::optional<std::int64_t> getDiskTotalSize();
    /// What a user without privileges may still write on the file system that holds "/".
    static std::optional<std::int64_t> getDiskAvailableSize();
    /// The item's own size (for a folder that of its entry, not its contents); 0 if unreadable.
    static std::int64_t getLocalFileSize(const QString &path);
    /// Total size of everything below a folder: files, links and sub-folders' own entries, the
    /// folder itself not counted, links below not followed; a path that is itself a link to a
    /// folder means that folder. Unreadable items count 0; a file, a missing or an unreadable
    /// folder gives 0.
    static std::int64_t getSize(const QString &path);
    /// "1.5 KB", "5.00 GB", "--" for 0: thresholds of 1024, computed in single precision.
    static QString convertBytes(std::uint64_t count);

    // SQL value pieces. With toEnd false a "," follows the value.

    static QString UInteger2SQLString(std::uint64_t value, bool toEnd);
    /// Puts the text between single quotes exactly as given: quotes inside are not doubled.
    static QString NSString2SQLString(const QString &text, bool toEnd);

    // Text and log.

    /// Text in the system's encoding; an empty text for a null pointer.
    static QString getNSString(const char *text);
    /// Writes "[sender]->(method):message" as one line to the system log.
    static void printMsg(const QString &sender, const QString &method, const QString &message);
    /// Percent-escapes in UTF-8 what RFC 2396 does not allow in an address: controls, blank, DEL,
    /// everything outside ASCII and "#%<>[\]^`{|} with the quote. Letters, digits, the marks
    /// -_.!~*'() and the delimiters ;/?:@&=+$, stay. An unpaired surrogate counts as U+FFFD.
    static QString encode2UTF8(const QString &text);
    /// Undoes percent-escapes; none if the bytes are not valid UTF-8. "+" stays "+", and so does a
    /// "%" without two hexadecimal digits behind it.
    static std::optional<QString> decodeFromUTF8(const QString &text);

    /// Opaque data that finds the folder again as long as the same folder is at its path, after a
    /// restart too. The address is a local one. None, with a log line, if the folder's status
    /// cannot be read.
    static std::optional<QByteArray> bookmarkForURL(const QUrl &url);
    /// The folder of a bookmark; none, with a log line, if another folder or none is there now, or
    /// if the data are not a bookmark.
    static std::optional<QUrl> urlForBookmark(const QByteArray &bookmark);

    /// The application's own folder, "Toolvane/Documents" where the user's programs keep their data
    /// ($XDG_DATA_HOME). If it is missing, it is made, for its owner alone.
    static QString getAppDocumentFolder();

    // The window half: interface thread only.

    /// Shows an information box with one OK button and returns when it is dismissed, with the
    /// response code; 0 if its window was destroyed or the program was quit meanwhile. While none
    /// of our windows is active, the box comes up as soon as one is. Both texts are shown as plain
    /// text, exactly as given.
    static int showAlert(const QString &messageText, const QString &informativeText);
    static void showWindow(QWidget *window); ///< To the front, and activates the program.
    static void hideWindow(QWidget *window); ///< Neither closes nor destroys it.
    /// Signals a refused input: swings the window left and right by 2 % of its width, four times in
    /// 0.4 s, and returns at once; the alert sound and the flash start with it.
    static void shakeWindow(QWidget *window);
    static void playSystemSound(); ///< The desktop's alert sound; silent if there is none.
    static void flashScreen(); ///< A short flash over the program's windows.
};
