/*
 * A host in C: opens a register and maintains one record.
 *
 *     c-host REGISTER IDENTITY TYPE [PHOTO-FOLDER]
 */

#include <quillmere.h>

#include <stdio.h>
#include <stdlib.h>

/* Tells what the last call on the handle failed of; NULL for a call that had no handle. */
static void tell(const void* handle) {
    int32_t number = 0;
    const char* source = "";
    const char* description = "";
    quillmere_failure(handle, &number, &source, &description);
    fprintf(stderr, "%s %d: %s\n", source, (int)number, description);
}

static quillmere_status prepare(quillmere_entry* entry, quillmere_database* database, char** words) {
    quillmere_status status = quillmere_set_Connection(entry, database);
    if (status == QUILLMERE_OK) status = quillmere_set_OperationType(entry, 4); /* everything there is */
    if (status == QUILLMERE_OK) status = quillmere_set_personID(entry, words[0]);
    if (status == QUILLMERE_OK) status = quillmere_set_ZZtype(entry, strtol(words[1], NULL, 10));
    if (status == QUILLMERE_OK && words[2] != NULL) status = quillmere_set_PhotoPath(entry, words[2]);
    return status;
}

/* Returns when the clerk has closed the window. */
static quillmere_status maintain(quillmere_database* database, char** words) {
    quillmere_entry* entry = NULL;
    quillmere_status status = quillmere_create(&entry);
    if (status != QUILLMERE_OK) {
        tell(NULL);
        return status;
    }
    int32_t saved = 0;
    status = prepare(entry, database, words);
    if (status == QUILLMERE_OK) status = quillmere_show(entry, &saved);
    if (status == QUILLMERE_OK)
        puts(saved ? "saved" : "nothing saved");
    else
        tell(entry);
    quillmere_release(entry);
    return status;
}

int main(int argc, char** argv) {
    if (argc < 4) {
        fputs("usage: c-host REGISTER IDENTITY TYPE [PHOTO-FOLDER]\n", stderr);
        return EXIT_FAILURE;
    }
    quillmere_database* database = NULL;
    if (quillmere_open(argv[1], &database) != QUILLMERE_OK) {
        tell(NULL);
        return EXIT_FAILURE;
    }
    const quillmere_status status = maintain(database, argv + 2);
    quillmere_close(database);
    quillmere_shutdown();
    return status == QUILLMERE_OK ? EXIT_SUCCESS : EXIT_FAILURE;
}
