#include "windows/ListTotal.h"

#include "platform/window/Label.h"
#include "windows/WindowTexts.h"

void showTotal(const WindowTexts &texts, int rows, std::initializer_list<Label *> labels)
{
    const QString total =
        rows == 0 ? texts.loaded("String4") : QString::number(rows) + texts.loaded(rows == 1 ? "String2" : "String3");
    for (Label *label : labels)
        label->setCaption(total);
}
