#include <string>

#include <QString>
#include <sqlite3.h>
