# The comments of the C header are plain ones, as C programmers write them: here they become a reference.
1s,^/[*],/** @file,
2~1s,^/[*],/**,
# A comment on several lines of a kind counts for each.
s,^#define QUILLMERE_[A-Z_]* (*-*[0-9].*,& /**< A status. */,
/^QUILLMERE_API quillmere_status quillmere_get_/i /** Asks for the property; the comment before tells of it. */
