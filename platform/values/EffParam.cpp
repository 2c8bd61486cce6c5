#include "values/EffParam.h"

#include <cstdlib>
#include <initializer_list>

void EffParamFree(EffParam* parameter) {
    if (!parameter)
        return;
    for (int i = 0; i < parameter->optionCount; ++i)
        std::free(parameter->options[i]);
    std::free(parameter->options);
    std::free(parameter->type);
    for (EffParamMilestone* milestone : {&parameter->startMilestone, &parameter->endMilestone}) {
        std::free(milestone->program);
        std::free(milestone->id);
    }
    *parameter = EffParam{};
}
