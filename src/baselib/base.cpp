#include "baselib/base.h"

void VrBaseCL::FmInputEvrFileM(VrIOCL*) { }
void VrBaseCL::FmOutputEvrFileM(VrIOCL*) const { }
void VrBaseCL::FmReadEvrFileM(FILE*) { }
void VrBaseCL::FmWriteEvrFileM(FILE*) const { }
void VrBaseCL::InitialM() { }
void VrBaseCL::SetByMergeM(const VrBaseCL&, int) { }
VrBaseCL::~VrBaseCL() = default;
