#ifndef HostCatalogue_H
#define HostCatalogue_H

// Lets the message catalogue of the parameters hold the descriptions of all described parameters. The texts
// are in memory when it returns; a second call has no effect.
void UseDescriptions();

#endif
