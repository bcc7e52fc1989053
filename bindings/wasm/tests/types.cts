// The same of a CommonJS module.

import quillet = require('quillet');

const made: quillet.Translation = quillet.loadSync().translate('select 1', { to: 'postgresql' });
console.log(made.text);
