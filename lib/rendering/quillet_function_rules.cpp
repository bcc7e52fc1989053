#include "quillet_function_rules.h"

#include "quillet_types.h"

namespace quillet {

namespace {

constexpr int (*default_types[])(const node_function_call *) = {
#define FUNCTION(name, rule) quillet_get_result_type_function_##rule,
#include "quillet_functions.def"
};

} // namespace

int default_type_of(int function, const node_function_call &call) {
    return default_types[function](&call);
}

outcome render_function(rendering &r, const dialect &home, int index, node_function_call *call) {
    const function_rule &rule = home.functions[index];
    if (rule.refusal)
        return r.refuse(home, call, rule.refusal);
    if (rule.own)
        return rule.own(r, call, nullptr);
    node_expression *last = last_argument(*call);
    node_expression *previous = previous_argument(*call);
    operands all(r, &rule.text);
    switch (rule.needs) {
    case arguments::nothing: break;
    case arguments::last:
        if (!last)
            return r.lacks(call);
        all.add(last);
        break;
    case arguments::list:
        if (!call->expressions_list)
            return r.lacks(call);
        all.add(call->expressions_list);
        break;
    case arguments::two:
        if (!last || !previous)
            return r.lacks(call);
        all.add(previous);
        all.add(last);
        break;
    }
    const outcome result = all.write(rule.text);
    call->sql_type = default_type_of(index, *call);
    return result;
}

build_result *render_function_alone(const dialect &home, int index, builder *self,
                                    node_function_call *call) {
    const auto render = [&home, index](rendering &r, node_function_call *own, void *) {
        return render_function(r, home, index, own);
    };
    return render_alone(render, self, call, nullptr);
}

} // namespace quillet
