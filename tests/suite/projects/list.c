int list_length(void)
{
    return 0;
}
