int list_length();

int main()
{
    return list_length();
}
