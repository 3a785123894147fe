/* In the place of pixman-x86.c where vectors of 128 bits are always there and no processor can be
 * asked. */
#include "pixman-private.h"

pixman_implementation_t *
_pixman_x86_get_implementations (pixman_implementation_t *imp)
{
    return _pixman_disabled ("sse2") ? imp : _pixman_implementation_create_sse2 (imp);
}
