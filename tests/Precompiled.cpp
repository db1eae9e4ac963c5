// Its headers are compiled for all tests.

int main() { return 0; }
