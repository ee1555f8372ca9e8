#include "records/field_counter.h"

void FieldCounterCL::IntM(const char*, int& value)
{
    value = 0;
    addM(1);
}

void FieldCounterCL::RealM(const char*, float&)
{
    addM(1);
}

void FieldCounterCL::IntsM(const char*, int*, int count)
{
    addM(count);
}

void FieldCounterCL::RealsM(const char*, float*, int count)
{
    addM(count);
}

void FieldCounterCL::ColourM(const char*, ColourTP&, int*)
{
    addM(3);
}

void FieldCounterCL::TextM(const char*, CharArr&, const TextFormCL&)
{
    addM(1);
}
