// A shared object that is no kinematics module.
extern "C" __attribute__((visibility("default"))) int foreign_function()
{
    return 1;
}
