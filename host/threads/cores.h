// SPDX-License-Identifier: MIT
#ifndef CORES_H
#define CORES_H

namespace lessonhost {

//! How many of the machine's cores this process may use, at least one: a batch engine or a container may leave it fewer
//! than there are.
int usableCores();

} // namespace lessonhost

#endif // CORES_H
