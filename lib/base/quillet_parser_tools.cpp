#include "quillet_parser_tools.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "quillet_blocks.h"
#include "quillet_text_buffer.h"

using quillet::freed;

parse_data *_quillet_parse_data_create(const char *text) {
    const std::size_t length = std::strlen(text);
    std::unique_ptr<parse_data, freed> data(
        static_cast<parse_data *>(_quillet_take(sizeof(parse_data))));
    *data = {static_cast<char *>(_quillet_take(length + 1)), static_cast<int>(length), 0};
    std::memcpy(data->string, text, length + 1);
    return data.release();
}

void _quillet_parse_data_free(parse_data *data) {
    if (!data)
        return;
    std::free(data->string);
    std::free(data);
}

int _quillet_input_from_string(parse_data *data, char *buffer, int max_size) {
    const int count = std::min(max_size, data->length - data->pos);
    std::memcpy(buffer, data->string + data->pos, static_cast<std::size_t>(count));
    data->pos += count;
    return count;
}
