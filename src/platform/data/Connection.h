#pragma once

// Hosts use it too.
#include <quillmere/Connection.h>
