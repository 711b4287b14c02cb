// How far the selected cameras have a function, as the getters report it under the keys "Exist...".
window.MULTIPLE_DOCS_NOTHING = 0;
window.MULTIPLE_DOCS_NOT_IN_CURRENT = 1;
window.MULTIPLE_DOCS_CURRENT_AND_ANY = 2;
window.MULTIPLE_DOCS_ALL = 3;
