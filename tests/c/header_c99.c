/* The public headers compile as strict C99 and a call links and works. */
#include <stdio.h>
#include <string.h>

#include "tavs.h"

int main(void)
{
    const TavLibVersion* v = tavsGetLibVersion();
    Status st = ErrNullPtr;
    if (v == NULL || v->major != 8 || strcmp(v->version, "8.2.3 (r48108)") != 0) {
        fprintf(stderr, "version record wrong\n");
        return 1;
    }
    if (st != -8 || StatusOk != 0 || ErrRoundMode != -213 || WarnBitCount != 27) {
        fprintf(stderr, "status values wrong\n");
        return 1;
    }
    printf("C99: %s\n", v->name);
    return 0;
}
