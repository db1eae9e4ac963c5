/* Opens a register from C: plain REGISTER */

#include <quillmere.h>

#include <stdio.h>

int main(int argc, char** argv) {
    const char* version = "";
    const char* description = "";
    quillmere_database* database = NULL;
    if (argc < 2 || quillmere_version(&version) != QUILLMERE_OK) return 2;
    if (quillmere_open("no such register.db", &database) != QUILLMERE_FILE_NOT_FOUND) return 1;
    if (quillmere_failure(NULL, NULL, NULL, &description) != QUILLMERE_OK || description[0] == '\0') return 1;
    if (quillmere_open(argv[1], &database) != QUILLMERE_OK) return 1;
    printf("version %s, opened\n", version);
    return quillmere_close(database) == QUILLMERE_OK ? 0 : 1;
}
