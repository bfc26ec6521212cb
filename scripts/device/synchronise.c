// Tells the kernel that its clock is synchronised, as a time service does.
#include <sys/timex.h>

int main(void)
{
    struct timex state = {.modes = ADJ_STATUS | ADJ_MAXERROR | ADJ_ESTERROR};
    return adjtimex(&state) < 0;
}
