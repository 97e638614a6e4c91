#pragma once

/// Opens and closes the database for a stretch of work, remembered by one flag and not counted: the
/// first closeDB() closes, however often openDB() was called.
///
/// This is the database half of `Global`, which keeps the session of the logged-in user as well. It
/// stands here because the gateways need it and the store may not know the users' layer; `Global`
/// derives from it, so that its callers write Global::openDB(). Interface thread only.
class DBSession
{
public:
    static void openDB(); ///< Sets the flag whether the database could be opened or not.
    static void closeDB();
    static bool isDBOpen();

protected:
    DBSession() = default;
};

/// Has the database open for the scope, and closes it behind only where it was closed before.
class DBScope
{
public:
    DBScope();
    ~DBScope();
    DBScope(const DBScope &) = delete;
    DBScope &operator=(const DBScope &) = delete;

private:
    bool m_hasOpened;
};
