#include "configuration/PointerFile.h"
#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"

int main(int argc, char **argv)
{
    Application application(argc, argv);
    followPointerFile();
    Forms::use<frmprincipal>().Show();
    return Application::exec();
}
