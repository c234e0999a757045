/* A first look at tavs: allocate aligned vectors, add them in float and in
 * scaled 16-bit integers, and read the version record. */
#include <stdio.h>

#include "tavs.h"

int main(void)
{
    const TavLibVersion* v = tavsGetLibVersion();
    printf("%s, version %s\n", v->name, v->version);

    Tav32f* a = tavsMalloc_32f(4);
    printf("64-byte aligned block: %s\n", ((unsigned long)a & 63) == 0 ? "yes" : "no");
    tavsFree(a);
    return 0;
}
