/* A first look at tavs: scaled integer arithmetic with ties to even, a
 * float threshold and sum, aligned memory, a status on every call. */
#include <stdio.h>

#include "tavs.h"

int main(void)
{
    const TavLibVersion* v = tavsGetLibVersion();
    printf("%s, version %s\n", v->name, v->version);

    /* (a + b) / 2 rounded to nearest, ties to even, saturated to 16 bits. */
    Tav16s a[4] = {3, 5, -1, 32767}, b[4] = {0, 0, 0, 32767}, d[4];
    Status st = tavsAdd_16s_Sfs(a, b, d, 4, 1);
    printf("Add_16s_Sfs scale 1: status %d -> %d %d %d %d\n", st, d[0], d[1], d[2], d[3]);

    /* Raise everything below 0.5 to 0.5, then sum. */
    Tav32f* x = tavsMalloc_32f(8);
    if (x == NULL) return 1;
    for (int i = 0; i < 8; ++i) x[i] = (Tav32f)i * 0.25f;
    st = tavsThreshold_LT_32f(x, x, 8, 0.5f);
    Tav32f sum = 0;
    if (st == StatusOk) st = tavsSum_32f(x, 8, &sum, HintAccurate);
    printf("Threshold_LT_32f + Sum_32f: status %d -> sum %.2f\n", st, sum);

    /* Errors are statuses, and nothing is written. */
    printf("Add_16s_Sfs with len 0: status %d (ErrSize is %d)\n", tavsAdd_16s_Sfs(a, b, d, 0, 0), ErrSize);
    tavsFree(x);
    return 0;
}
