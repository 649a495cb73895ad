/// Something that only the later version of the contract has.
void somethingNew() {}
