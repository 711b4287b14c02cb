import {enhance} from "./ui/enhance.js";

enhance();
