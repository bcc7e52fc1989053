// The same program as C++: the headers, the records and the operations are good for both languages.
#include "client.c"
