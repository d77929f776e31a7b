int list_length(void);

int main(void)
{
    return list_length();
}
