/// Stands for the host where only its version is looked at.
int main()
{
    return 0;
}
