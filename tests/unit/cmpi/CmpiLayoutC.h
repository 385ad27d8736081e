/* What the C compiler measured and built, for the C++ side to compare. */
#ifndef VELDRA_CMPI_LAYOUT_C_H
#define VELDRA_CMPI_LAYOUT_C_H

#include <stddef.h>

#include "cmpift.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct VeldraLayoutFacts {
    size_t data;
    size_t dataValueOffset;
    size_t value;
    size_t status;
    size_t broker;
    size_t brokerFT;
    size_t brokerEncFT;
    size_t instanceMIFT;
    size_t indicationMIFT;
    size_t arrayFT;
} VeldraLayoutFacts;

VeldraLayoutFacts veldraLayoutFactsFromC(void);

/* An instance MI written in C: getInstance answers CMPI_RC_ERR_NOT_FOUND with
   the message it received in miName, cleanup counts its calls. */
CMPIInstanceMI* veldraCInstanceMI(void);
int veldraCCleanupCount(void);

/* An array table written in C whose getElementAt returns a uint32 datum of
   the index times three, to check CMPIData comes back by value intact. */
CMPIArray* veldraCArray(void);

#ifdef __cplusplus
}
#endif

#endif
