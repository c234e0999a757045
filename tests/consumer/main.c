/* A program outside the tree: finds the installed library and calls it. */
#include <stdio.h>
#include <tavs.h>

int main(void)
{
    const TavLibVersion* v = tavsGetLibVersion();
    Tav32f* p = tavsMalloc_32f(16);
    int ok = v && v->major == 8 && p != NULL && ((unsigned long)p & 63) == 0;
    tavsFree(p);
    printf("consumer: %s %s\n", v ? v->name : "?", ok ? "ok" : "FAILED");
    return ok ? 0 : 1;
}
