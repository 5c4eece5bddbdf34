// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

int main()
{
    return 0;
}
