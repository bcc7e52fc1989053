#include "quillet_parser_tools.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "quillet_parser.h"

parse_data *quillet_query = nullptr;
int quillet_comment_count = 0;

parse_data *_quillet_parse_data_create(const char *text) {
    auto *data = static_cast<parse_data *>(std::malloc(sizeof(parse_data)));
    const std::size_t length = std::strlen(text);
    *data = {static_cast<char *>(std::malloc(length + 1)), static_cast<int>(length), 0};
    std::memcpy(data->string, text, length + 1);
    return data;
}

void _quillet_parse_data_free(parse_data *data) {
    std::free(data->string);
    std::free(data);
}

int _quillet_input_from_string(parse_data *data, char *buffer, int max_size) {
    const int count = std::min(max_size, data->length - data->pos);
    std::memcpy(buffer, data->string + data->pos, static_cast<std::size_t>(count));
    data->pos += count;
    return count;
}
