#include "core/act/left_instances.h"

#include "core/values/text_forms.h"

namespace act {

void take_back_instances(const host::Platform& here, Session& session) {
    here.guarded("in take_back_instances - Line # ", [&](host::Step& step) {
        step = 10;
        for (const Database::LeftInstance& left : session.ActDatabase->Take_Back_Instances()) {
            step = 20;
            here.box.show({.text = "The calendar ended while the occurrence of \"" + left.regarding + "\" on " +
                                   values::short_date(left.day, here.locale) +
                                   " was edited. It was changed, or its series was deleted, so it stays as an "
                                   "activity of its own.",
                           .title = here.application.title,
                           .icon = host::Icon::information});
        }
    });
}

} // namespace act
