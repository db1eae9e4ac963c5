/*
 * Quillmere for hosts in C, and in whatever calls C: Python's ctypes, for one.
 *
 *     quillmere_open      a register, by the path of its file
 *     quillmere_create    an entry object; quillmere_set_... its properties
 *     quillmere_show      the maintenance window; returns when the clerk has closed it
 *     quillmere_failure   tells in words why one of these did not work
 *     quillmere_release   the entry object, quillmere_close the register, quillmere_shutdown the toolkit
 *
 * Status. Every function returns 0 when it has done its work, else the number of the failure, and then it
 * has changed nothing that its comment does not tell. No function ends the host or lets anything else out.
 *
 * Handles. What stands behind a handle is the library's. A handle that is NULL, was released, or is one of
 * the other kind is refused with QUILLMERE_WRONG_HANDLE; the handle of something released never comes back
 * for something new.
 *
 * Texts are UTF-8 and end with a zero byte. A text that is given is copied before the function returns. One
 * that is NULL or no UTF-8 is refused with QUILLMERE_INVALID_CALL. A text that is handed out belongs to the
 * library: it is never NULL, is not to be freed, and lives as long as its function says.
 *
 * Threads. A handle is used by one thread at a time. The window opens on one thread only, that of the user
 * interface: the one that made the host's QApplication, or else the first that called quillmere_show.
 */
#ifndef QUILLMERE_H
#define QUILLMERE_H

#include <stdint.h>

#if defined(__GNUC__)
#define QUILLMERE_API __attribute__((visibility("default")))
#else
#define QUILLMERE_API
#endif

#if defined(__cplusplus)
#define QUILLMERE_NOTHING_THROWN noexcept
#else
#define QUILLMERE_NOTHING_THROWN
#endif

/* The numbers that a host is likely to tell apart. There are others; each comes with its description. */
#define QUILLMERE_OK 0
/* An argument is NULL or no UTF-8, or this is not the time or the thread for the call. */
#define QUILLMERE_INVALID_CALL 5
/* A number has no place in 16 bits with a sign. */
#define QUILLMERE_OVERFLOW 6
#define QUILLMERE_FILE_NOT_FOUND 53
#define QUILLMERE_WRONG_HANDLE 91
/* The register is not open: it was never set, or has been closed. */
#define QUILLMERE_NOT_OPEN 3709
#define QUILLMERE_STATEMENT_FAILED (-2147217900)
#define QUILLMERE_UNSPECIFIED (-2147467259)

#if defined(__cplusplus)
extern "C" {
#endif

/* An open register. */
typedef struct quillmere_database quillmere_database;
/* An entry object: the properties of a run of the maintenance window. */
typedef struct quillmere_entry quillmere_entry;

/* 0, or the number of a failure. */
typedef int32_t quillmere_status;

/* The library's version, as "1.0.0"; the text lives as long as the library is loaded. */
QUILLMERE_API quillmere_status quillmere_version(const char** version) QUILLMERE_NOTHING_THROWN;

/*
 * What became of the last call on this handle, an entry or a database: the number that it returned, where a
 * failure came from ("Quillmere", "SQLite"), and its description in Chinese, ready to be shown. After a call
 * that worked these are 0 and two empty texts. The texts live until the next call on the handle.
 *
 * With NULL for the handle: the same for the last call on this thread that had no handle to keep it with.
 * That is quillmere_version, quillmere_open, quillmere_create, quillmere_shutdown, and every call whose first
 * argument was refused with QUILLMERE_WRONG_HANDLE. These texts live until the thread's next such call.
 *
 * Each of the three places may be NULL when it is of no interest. Asking is no call that is kept: it changes
 * nothing. A wrong handle is told by the status alone.
 */
QUILLMERE_API quillmere_status quillmere_failure(const void* handle, int32_t* number, const char** source,
                                                 const char** description) QUILLMERE_NOTHING_THROWN;

/*
 * Opens the register in the SQLite file of that path, which must exist; a place that begins with
 * "postgresql:" is that of a PostgreSQL database, where the library has been built with PostgreSQL. *database
 * becomes its handle, NULL when that fails. The handle is given back with quillmere_close.
 */
QUILLMERE_API quillmere_status quillmere_open(const char* place,
                                              quillmere_database** database) QUILLMERE_NOTHING_THROWN;

/*
 * Closes the register, and its handle ends. Entries that were told of it stay, and find it not open. Refused
 * with QUILLMERE_INVALID_CALL while the window works on it; the handle then stays good.
 */
QUILLMERE_API quillmere_status quillmere_close(quillmere_database* database) QUILLMERE_NOTHING_THROWN;

/*
 * A new entry object: numbers 0, texts empty, no register. *entry becomes its handle, NULL when that fails.
 * The handle is given back with quillmere_release.
 */
QUILLMERE_API quillmere_status quillmere_create(quillmere_entry** entry) QUILLMERE_NOTHING_THROWN;

/*
 * Ends the entry object and its handle; its register stays open. Refused with QUILLMERE_INVALID_CALL while
 * its window is open; the handle then stays good.
 */
QUILLMERE_API quillmere_status quillmere_release(quillmere_entry* entry) QUILLMERE_NOTHING_THROWN;

/*
 * The properties are kept as they are given and read by quillmere_show. A change while the window is open
 * counts for the next time. A number outside -32768 to 32767 is refused with QUILLMERE_OVERFLOW. A text that
 * is handed out lives until the same property is set, or the entry released.
 */

/* The register to work on; several entries may have the same. */
QUILLMERE_API quillmere_status quillmere_set_Connection(quillmere_entry* entry, quillmere_database* database)
    QUILLMERE_NOTHING_THROWN;
/* *database becomes NULL when none was set, or it has been closed. */
QUILLMERE_API quillmere_status quillmere_get_Connection(quillmere_entry* entry, quillmere_database** database)
    QUILLMERE_NOTHING_THROWN;

/*
 * 0 a new record; 1 plan, 2 progress, 3 closing report, 4 everything of an existing record. With other values
 * the window opens with nothing to do.
 */
QUILLMERE_API quillmere_status quillmere_set_OperationType(quillmere_entry* entry,
                                                           int64_t value) QUILLMERE_NOTHING_THROWN;
QUILLMERE_API quillmere_status quillmere_get_OperationType(quillmere_entry* entry,
                                                           int16_t* value) QUILLMERE_NOTHING_THROWN;

/* The sponsorship type, 1 to 7; it counts when OperationType is not 0. */
QUILLMERE_API quillmere_status quillmere_set_ZZtype(quillmere_entry* entry,
                                                    int64_t value) QUILLMERE_NOTHING_THROWN;
QUILLMERE_API quillmere_status quillmere_get_ZZtype(quillmere_entry* entry,
                                                    int16_t* value) QUILLMERE_NOTHING_THROWN;

/* Kept, and read by nothing. */
QUILLMERE_API quillmere_status quillmere_set_PersonType(quillmere_entry* entry,
                                                        int64_t value) QUILLMERE_NOTHING_THROWN;
QUILLMERE_API quillmere_status quillmere_get_PersonType(quillmere_entry* entry,
                                                        int16_t* value) QUILLMERE_NOTHING_THROWN;

/* The directory of the photo files, without a separator at its end. */
QUILLMERE_API quillmere_status quillmere_set_PhotoPath(quillmere_entry* entry,
                                                       const char* value) QUILLMERE_NOTHING_THROWN;
QUILLMERE_API quillmere_status quillmere_get_PhotoPath(quillmere_entry* entry,
                                                       const char** value) QUILLMERE_NOTHING_THROWN;

/* The identity of the person, unit or project. */
QUILLMERE_API quillmere_status quillmere_set_personID(quillmere_entry* entry,
                                                      const char* value) QUILLMERE_NOTHING_THROWN;
QUILLMERE_API quillmere_status quillmere_get_personID(quillmere_entry* entry,
                                                      const char** value) QUILLMERE_NOTHING_THROWN;

/* The unit of the clerk; a person of another unit is refused on saving. */
QUILLMERE_API quillmere_status quillmere_set_UnitCode(quillmere_entry* entry,
                                                      const char* value) QUILLMERE_NOTHING_THROWN;
QUILLMERE_API quillmere_status quillmere_get_UnitCode(quillmere_entry* entry,
                                                      const char** value) QUILLMERE_NOTHING_THROWN;

/* The path of a skin file; empty for the light skin. */
QUILLMERE_API quillmere_status quillmere_set_SkinPath(quillmere_entry* entry,
                                                      const char* value) QUILLMERE_NOTHING_THROWN;
QUILLMERE_API quillmere_status quillmere_get_SkinPath(quillmere_entry* entry,
                                                      const char** value) QUILLMERE_NOTHING_THROWN;

/*
 * Opens the maintenance window with what the entry says, and returns when it has closed. *saved becomes 1
 * when a record was saved with the Save button, else 0; it is left alone when the call fails.
 *
 * The window works in the host's QApplication. Where there is none, the first call makes one, which is kept.
 * Refused with QUILLMERE_INVALID_CALL, before anything shows: on another thread than that of the user
 * interface, without a display, beside a bare QCoreApplication, and while a window is open. A failure that
 * left the window has closed it; what was saved before stays saved.
 */
QUILLMERE_API quillmere_status quillmere_show(quillmere_entry* entry,
                                              int32_t* saved) QUILLMERE_NOTHING_THROWN;

/*
 * Ends the QApplication that quillmere_show made, on the thread that made it; where there is none it does
 * nothing. Later shows make another. Refused with QUILLMERE_INVALID_CALL on another thread, and while the
 * window is open. Handles stay good.
 */
QUILLMERE_API quillmere_status quillmere_shutdown(void) QUILLMERE_NOTHING_THROWN;

#if defined(__cplusplus)
}
#endif

#endif
