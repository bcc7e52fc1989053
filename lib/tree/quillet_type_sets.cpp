#include "quillet_type_sets.h"

using namespace quillet;

int quillet_is_datetime(int type) { return datetime_types.has(type); }
int quillet_is_datetime_not_interval(int type) { return datetime_types_not_interval.has(type); }
int quillet_is_integer(int type) { return integer_types.has(type); }
int quillet_is_float(int type) { return float_types.has(type); }
int quillet_is_numeric(int type) { return (integer_types | float_types).has(type); }
